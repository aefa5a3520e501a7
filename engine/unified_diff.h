// The differences between a file's text and its revised text as a unified diff ("--- a/PATH",
// "+++ b/PATH", hunks with three lines of context), which `patch -p1` and `git apply` take. Lines
// are compared as bytes, each with its own line ending; a last line without one is marked
// "\ No newline at end of file".
#ifndef STYLE_TARNEL_ENGINE_UNIFIED_DIFF_H
#define STYLE_TARNEL_ENGINE_UNIFIED_DIFF_H

#include <string>

// Whether `git apply` finds the file of that label in a diff: not when it holds a tab, a line
// feed or a carriage return, or ends with what reads as a date (" 2024-01-31", a time and a zone
// may follow), which git takes for the timestamp of a traditional diff header.
bool git_reads_the_name_in_a_diff(std::string const& label);

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
