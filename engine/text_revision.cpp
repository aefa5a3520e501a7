#include "engine/text_revision.h"

#include "engine/revision_run.h"
#include "engine/write_in.h"

text_outcome text_revision::of(std::string const& text, QString const& name, std::string& result,
                               std::string& report) const {
    result = text;
    revision_request request = this->request;
    // Nothing to collect: the checks of the plugin and the addon are all the run does before
    // the text.
    request.paths.clear();
    request.writes_nothing = true;
    // The run's own report: its counts of files say nothing of a text.
    std::string run_report;
    revision_run run(run_report, request);
    if (!run.prepare()) {
        report += run_report;
        return text_outcome::not_started;
    }
    std::string revised;
    plugin_answer const answer = run.revise_text(text, revised);
    // The plugin hears that the revision is over, as after a run (unless it crashed).
    run.finish();
    if (answer == plugin_answer::crashed) {
        write_in(report).about_plugin_crash_on(name, request.plugin_file);
        return text_outcome::refused;
    }
    if (answer != plugin_answer::revised) {
        write_in(report).about_syntax_error_in(name);
        return text_outcome::refused;
    }
    result = std::move(revised);
    return text_outcome::revised;
}
