#include "engine/GUI_formatter.h"

#include "engine/revision_run.h"
#include "engine/write_in.h"

void GUI_formatter::operator()(revision_request request, std::function<void(int)> maximum,
                               std::function<void(int)> value,
                               std::function<void(std::string)> status,
                               std::function<void(std::string)> finished,
                               std::atomic<bool> const& stop) {
    status("Preparing, please wait...");
    std::string report;
    int left_out = 0;
    request.ignoring = request.ignoring.counting_into(left_out);
    {
        revision_run run(report, request);
        if (!run.prepare()) {
            finished(report);
            return;
        }
        maximum(run.found());
        run.revise_all([&] { return stop.load(); },
                       [&](unsigned long revised, int found) {
                           show_this_file_was_revised(revised, found, value, status);
                       });
        run.finish();
        write_in(report).about_files_left_out_by_ignore_rules(left_out);
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
