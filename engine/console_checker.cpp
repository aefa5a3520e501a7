#include "engine/console_checker.h"

#include "engine/interruption_by_signal.h"
#include "engine/lines_changed_in_run.h"
#include "engine/revision_run.h"
#include "engine/unified_diff.h"
#include "engine/write_in.h"

#include <QDir>

#include <iostream>
#include <map>
#include <mutex>

#include <unistd.h>

console_checker::console_checker() : console_checker(std::cout, std::cerr) {
    progress_shown = ::isatty(STDERR_FILENO) == 1;
}

int console_checker::operator()(revision_request request, check_output output) {
    interruption_by_signal const interruption;
    // By path, so that the diff reads the same however the files were taken.
    std::map<QString, std::string> diffs;
    // Files whose names git could not read in the diff: named on standard error instead, so that
    // `git apply` takes the rest.
    std::string left_out;
    std::mutex diffs_lock;
    request.writes_nothing = true;
    if (output == check_output::diff)
        request.would_change = [&](QString const& path, std::string const& text, std::string const& revised) {
            std::string const label = label_in_diff_of(path);
            std::lock_guard<std::mutex> const hold(diffs_lock);
            if (!git_reads_the_name_in_a_diff(label)) {
                write_in(left_out).about_file_left_out_of_diff(path);
                return;
            }
            diffs[path] = unified_diff_of(label).between(text, revised);
        };
    // The report of a check of whole files ends with how much of the code the style changes; that
    // of a diff is left as it was, for the scripts that read it.
    bool const with_figure = output == check_output::report && request.lines.all();
    lines_changed_in_run count;
    if (with_figure)
        request.would_change = [&](QString const& path, std::string const& text, std::string const& revised) {
            count.take(path, text, revised);
        };
    std::ostream& report_stream = output == check_output::diff ? err : out;
    if (request.quiet)
        progress_shown = false;
    if (progress_shown)
        err << "Preparing, please wait..." << std::flush;
    std::string report;
    int ignored = 0;
    request.ignoring = request.ignoring.counting_into(ignored);
    revision_run run(report, request);
    if (!run.prepare()) {
        if (progress_shown)
            err << '\r' << std::flush;
        report_stream << report << '\n' << std::flush;
        return interruption.was_requested() ? interruption.exit_status() : 2;
    }
    bool const interrupted = run.revise_all([&] { return interruption.was_requested(); },
                                            [&](unsigned long revised, int found) {
                                                if (progress_shown)
                                                    err << "\rCheck... " << revised << " from " << found
                                                        << " files" << std::flush;
                                            });
    run.finish();
    write_in(report).about_files_left_out_by_ignore_rules(ignored);
    if (with_figure && !interrupted && run.found() > 0) {
        count.add_lines_of(run.files(), run.found());
        write_in(report).about_lines_the_style_changes(count.lines_changed, count.lines, count.files_changed,
                                                       count.files);
    }
    if (progress_shown)
        err << '\r' << std::flush;
    for (auto const& diff : diffs)
        out << diff.second;
    out << std::flush;
    report_stream << "It's done." << std::string(25, ' ') << '\n' << left_out << report << '\n' << std::flush;
    if (interrupted)
        return interruption.exit_status();
    if (run.failed() > 0)
        return 2;
    return run.changed() > 0 ? 1 : 0;
}

std::string label_in_diff_of(QString const& path) {
    QString const relative = QDir::current().relativeFilePath(path);
    if (relative.startsWith("../") || QDir::isAbsolutePath(relative))
        return path.toStdString();
    return relative.toStdString();
}
