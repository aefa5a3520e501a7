#include "engine/GUI_formatter.h"

#include "engine/revision_run.h"
#include "engine/write_in.h"

void GUI_formatter::operator()(std::string plugin_file, std::string addon_file,
                               std::string extensions, QStringList paths,
                               std::function<void(int)> maximum, std::function<void(int)> value,
                               std::function<void(std::string)> status,
                               std::function<void(std::string)> finished,
                               std::atomic<bool> const& stop) {
    status("Preparing, please wait...");
    std::string report;
    {
        revision_run run(report);
        if (!run.prepare(plugin_file, addon_file, extensions, paths)) {
            finished(report);
            return;
        }
        int const found = run.found();
        maximum(found);
        for (auto const& path : run.files()) {
            if (!run.revise(path))
                continue;
            show_this_file_was_revised(run.revised(), found, value, status);
            if (stop.load()) {
                write_in(report).about_interruption();
                break;
            }
        }
        run.finish();
    }
    // The run, its plugin and its records are gone before the interface hears of the end.
    finished(report);
}

void GUI_formatter::show_this_file_was_revised(unsigned long revised, int found,
                                               std::function<void(int)> const& value,
                                               std::function<void(std::string)> const& status) {
    status(std::to_string(revised) + " from " + std::to_string(found) + " files");
    value(static_cast<int>(revised));
}
