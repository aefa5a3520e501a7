// Detects how a text ends its lines and spells a space, in whatever encoding it is (8-bit, UTF-16
// or UTF-32, either byte order), by looking only at a few bytes around its first line break.
#ifndef STYLE_TARNEL_ENGINE_TRAITS_OF_H
#define STYLE_TARNEL_ENGINE_TRAITS_OF_H

#include "interface_to_language_plugin.h"

#include <cstddef>
#include <string>
#include <vector>

namespace detail {

class traits_of {
public:
    line_ending_traits operator()(std::string const& text) const;

    // Candidates for a text holding a line feed, in the order they are tried: CR LF before LF,
    // wider encodings before narrower ones.
    std::vector<std::string> EOLs_with_LF() const;
    // Candidates for a text holding carriage returns but no line feed.
    std::vector<std::string> EOLs_with_CR_only() const;
};

class fill {
public:
    // Fills `traits` from the first candidate found in `window` that is 8-bit, or whose offset
    // from the start of the text (`window_offset` + its place in the window) is a multiple of its
    // length, so that a UTF-16 or UTF-32 sequence sits on a code-unit boundary.
    void based_on(line_ending_traits& traits, std::vector<std::string> const& candidates,
                  std::string const& window, std::size_t window_offset) const;

    line_ending_traits fill_traits_based_on(std::string const& EOL) const;
};

}  // namespace detail

#endif
