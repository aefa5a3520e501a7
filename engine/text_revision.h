// One text in memory revised with a run's plugin and addon, as an editor hands over a buffer on
// standard input: no file is read or written and no change record is kept.
#ifndef STYLE_TARNEL_ENGINE_TEXT_REVISION_H
#define STYLE_TARNEL_ENGINE_TEXT_REVISION_H

#include "engine/revision_request.h"

#include <string>

enum class text_outcome {
    revised,
    // The plugin refused the text (syntax error, or bytes it cannot take), or crashed on it.
    refused,
    // The plugin or the addon could not be used.
    not_started,
};

class text_revision {
public:
    explicit text_revision(revision_request request) : request(std::move(request)) {}

    // `result` gets the revised text, or the text unchanged when it was refused or the revision
    // could not start; `report` gets the reason, naming the text as `name`.
    text_outcome of(std::string const& text, QString const& name, std::string& result,
                    std::string& report) const;

private:
    revision_request request;
};

#endif
