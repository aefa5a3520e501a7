// The differences between a file's text and its revised text as a unified diff ("--- a/PATH",
// "+++ b/PATH", hunks with three lines of context), which `patch -p1` and `git apply` take. Lines
// are compared as bytes, each with its own line ending; a last line without one is marked
// "\ No newline at end of file".
#ifndef STYLE_TARNEL_ENGINE_UNIFIED_DIFF_H
#define STYLE_TARNEL_ENGINE_UNIFIED_DIFF_H

#include <string>

class unified_diff_of {
public:
    // `label`: the path shown after "a/" and "b/", relative to where the diff is to be applied.
    explicit unified_diff_of(std::string label) : label(std::move(label)) {}

    // Empty when the texts are equal.
    std::string between(std::string const& text, std::string const& revised) const;

private:
    std::string label;
};

#endif
