// One call of the clang-format engine on a whole text (internal to the engine library).
#ifndef TARNEL_ENGINE_ENGINE_CALL_H
#define TARNEL_ENGINE_ENGINE_CALL_H

#include "text_encoding.h"

#include <clang/Format/Format.h>

#include <string>
#include <vector>

namespace tarnel_engine {

// The engine's line ending for a text whose traits say `ending`: the file's own majority decides;
// the traits only break a tie. The host looks at the first line break alone, and in UTF-16 it may
// take a CR LF that is not aligned to four bytes for an LF.
clang::format::FormatStyle::LineEndingStyle engine_line_ending(line_ending ending);

struct engine_outcome {
    std::string text;
    // False when the engine could not format some line because of a syntax error.
    bool complete = true;
    // Where `text` differs from the code it was made of, in offsets of `text`.
    std::vector<clang::tooling::Range> changed;
};

class format_with {
public:
    explicit format_with(clang::format::FormatStyle const& style) : style(style) {}
    engine_outcome the_code(std::string const& code) const;
    // Formats only the lines that the ranges touch, and `context` lines around each; with many
    // such places, the lines between the nearest are formatted too, and the whole code where they
    // cover most of it: the engine's cost grows with its tokens times its ranges.
    engine_outcome the_lines_around(std::string const& code, std::vector<clang::tooling::Range> const& ranges,
                                    unsigned context) const;
    // Formats only what the ranges touch and keeps the rest as it is, and moves each of
    // `positions` (offsets in `code`) to where it stands in the result.
    engine_outcome the_ranges(std::string const& code, std::vector<clang::tooling::Range> const& ranges,
                              std::vector<unsigned>& positions) const;

private:
    clang::format::FormatStyle const& style;
};

}  // namespace tarnel_engine

#endif
