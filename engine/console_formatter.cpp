#include "engine/console_formatter.h"

#include "engine/revision_run.h"

#include <iostream>

console_formatter::console_formatter() : console_formatter(std::cout, std::cerr) {}

void console_formatter::operator()(std::string plugin_file, std::string addon_file,
                                   std::string extensions, QStringList paths) {
    err << "Preparing, please wait..." << std::flush;
    std::string report;
    revision_run run(report);
    if (!run.prepare(plugin_file, addon_file, extensions, paths)) {
        err << '\r' << std::flush;
        out << report << '\n' << std::flush;
        return;
    }
    int const found = run.found();
    for (auto const& path : run.files())
        if (run.revise(path))
            show_this_file_was_revised(run.revised(), found);
    run.finish();
    err << '\r' << std::flush;
    out << "It's done." << std::string(25, ' ') << '\n' << report << '\n' << std::flush;
}

void console_formatter::show_this_file_was_revised(unsigned long revised, int found) {
    err << "\rRevise... " << revised << " from " << found << " files" << std::flush;
}
