// The windowed revision run, on a worker thread of its own: it reports through four callbacks
// (maximum, value, status text, finished with the report), which it calls from that thread, and
// reads `stop` before every file.
#ifndef STYLE_TARNEL_ENGINE_GUI_FORMATTER_H
#define STYLE_TARNEL_ENGINE_GUI_FORMATTER_H

#include "engine/revision_request.h"

#include <atomic>
#include <functional>
#include <string>

class GUI_formatter {
public:
    // `stop` must stay alive until `finished` has been called.
    void operator()(revision_request request, std::function<void(int)> maximum,
                    std::function<void(int)> value, std::function<void(std::string)> status,
                    std::function<void(std::string)> finished, std::atomic<bool> const& stop);
    void show_this_file_was_revised(unsigned long revised, int found,
                                    std::function<void(int)> const& value,
                                    std::function<void(std::string)> const& status);
};

#endif
