// The command-line revision run: on the calling thread, "Preparing, please wait..." and a
// self-overwriting progress line on standard error when it is a terminal, "It's done." and the report on standard
// output. SIGINT or SIGTERM stops it before the next file, as the window's Stop does.
#ifndef STYLE_TARNEL_ENGINE_CONSOLE_FORMATTER_H
#define STYLE_TARNEL_ENGINE_CONSOLE_FORMATTER_H

#include "engine/revision_request.h"

#include <iosfwd>

class console_formatter {
public:
    console_formatter();
    // The streams that stand for standard output and standard error.
    console_formatter(std::ostream& out, std::ostream& err) : out(out), err(err) {}

    // 0 when the run went through; 1 when it could not start; 128 + the number of the signal
    // that came before the run's last file (also during its preparation).
    int operator()(revision_request request);
    void show_this_file_was_revised(unsigned long revised, int found);

private:
    std::ostream& out;
    std::ostream& err;
    // The progress goes to a terminal only (standard error as a terminal, and not a quiet run).
    bool progress_shown = true;
};

#endif
