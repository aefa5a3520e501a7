#include "engine/console_formatter.h"

#include "engine/interruption_by_signal.h"
#include "engine/revision_run.h"
#include "engine/write_in.h"

#include <iostream>

#include <unistd.h>

console_formatter::console_formatter() : console_formatter(std::cout, std::cerr) {
    progress_shown = ::isatty(STDERR_FILENO) == 1;
}

int console_formatter::operator()(revision_request request) {
    interruption_by_signal const interruption;
    if (request.quiet)
        progress_shown = false;
    if (progress_shown)
        err << "Preparing, please wait..." << std::flush;
    std::string report;
    int left_out = 0;
    request.ignoring = request.ignoring.counting_into(left_out);
    revision_run run(report, request);
    if (!run.prepare()) {
        if (progress_shown)
            err << '\r' << std::flush;
        out << report << '\n' << std::flush;
        return interruption.was_requested() ? interruption.exit_status() : 1;
    }
    bool const interrupted = run.revise_all([&] { return interruption.was_requested(); },
                                            [&](unsigned long revised, int found) {
                                                show_this_file_was_revised(revised, found);
                                            });
    run.finish();
    write_in(report).about_files_left_out_by_ignore_rules(left_out);
    if (progress_shown)
        err << '\r' << std::flush;
    out << "It's done." << std::string(25, ' ') << '\n' << report << '\n' << std::flush;
    // A signal that came after the last file has nothing left to stop: the run is complete.
    if (interrupted)
        return interruption.exit_status();
    // A run in which no file could be read, written or revised did nothing it was asked to.
    bool const every_file_failed = run.found() > 0 && run.failed() == static_cast<unsigned long>(run.found());
    return every_file_failed ? 1 : 0;
}

void console_formatter::show_this_file_was_revised(unsigned long revised, int found) {
    if (!progress_shown)
        return;
    err << "\rRevise... " << revised << " from " << found << " files" << std::flush;
}
