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
    revision_run run(report, request);
    if (!run.prepare())
        return text_outcome::not_started;
    std::string revised;
    if (!run.revise_text(text, revised)) {
        write_in(report).about_syntax_error_in(name);
        return text_outcome::refused;
    }
    result = std::move(revised);
    return text_outcome::revised;
}
