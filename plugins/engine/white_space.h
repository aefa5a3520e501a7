// Comparing texts by their white space alone: the safety check of every revision and the
// distance that the option search shrinks.
#ifndef TARNEL_ENGINE_WHITE_SPACE_H
#define TARNEL_ENGINE_WHITE_SPACE_H

#include <string>

namespace tarnel_engine {

// Whether the two texts hold the same sequence of non-white-space bytes.
bool only_white_space_differs(std::string const& before, std::string const& after);

// How far the white space of `actual` is from that of `wanted`, gap by gap between their
// non-white-space bytes: zero when equal, larger the more gaps differ and the more their line
// breaks and widths differ. Texts with different non-white-space bytes are as far as can be.
unsigned long white_space_distance(std::string const& wanted, std::string const& actual);

// A form as the engine should see it: line feeds only, no white space before its first or after
// its last token.
std::string form_as_code(std::string const& form);

}  // namespace tarnel_engine

#endif
