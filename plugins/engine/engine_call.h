// One call of the clang-format engine on a whole text (internal to the engine library).
#ifndef TARNEL_ENGINE_ENGINE_CALL_H
#define TARNEL_ENGINE_ENGINE_CALL_H

#include <clang/Format/Format.h>

#include <string>
#include <vector>

namespace tarnel_engine {

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
    // Formats only the lines that the ranges touch, and `context` lines around each.
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
