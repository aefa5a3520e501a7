#include "engine/console_formatter.h"

#include "engine/interruption_by_signal.h"
#include "engine/revision_run.h"
#include "engine/write_in.h"

#include <iostream>

console_formatter::console_formatter() : console_formatter(std::cout, std::cerr) {}

int console_formatter::operator()(std::string plugin_file, std::string addon_file,
                                  std::string extensions, QStringList paths) {
    interruption_by_signal const interruption;
    err << "Preparing, please wait..." << std::flush;
    std::string report;
    revision_run run(report);
    if (!run.prepare(plugin_file, addon_file, extensions, paths)) {
        err << '\r' << std::flush;
        out << report << '\n' << std::flush;
        return 0;
    }
    int const found = run.found();
    bool interrupted = false;
    for (auto const& path : run.files()) {
        // Read before every file, so that a signal during the collection of a large tree or
        // among skipped files stops the run as soon as one during a revision.
        if (interruption.was_requested()) {
            write_in(report).about_interruption();
            interrupted = true;
            break;
        }
        if (run.revise(path))
            show_this_file_was_revised(run.revised(), found);
    }
    run.finish();
    err << '\r' << std::flush;
    out << "It's done." << std::string(25, ' ') << '\n' << report << '\n' << std::flush;
    // A signal that came after the last file has nothing left to stop: the run is complete.
    return interrupted ? interruption.exit_status() : 0;
}

void console_formatter::show_this_file_was_revised(unsigned long revised, int found) {
    err << "\rRevise... " << revised << " from " << found << " files" << std::flush;
}
