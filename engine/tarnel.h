// Starts a revision run: on the calling thread for the command line, or on a detached worker
// thread for the window.
#ifndef STYLE_TARNEL_ENGINE_TARNEL_H
#define STYLE_TARNEL_ENGINE_TARNEL_H

#include "engine/revision_request.h"

#include <atomic>
#include <functional>
#include <string>

class tarnel {
public:
    // Returns when the run is over, with the command-line driver's status.
    int operator()(revision_request const& request) const;
    // Returns as soon as the worker is started; always 0. Throws std::system_error when no
    // thread can be made.
    int operator()(revision_request const& request, std::function<void(int)> maximum,
                   std::function<void(int)> value, std::function<void(std::string)> status,
                   std::function<void(std::string)> finished, std::atomic<bool> const& stop) const;
};

#endif
