// The table of options the inference may move, each with its candidate values written in
// clang-format's configuration syntax (internal to the engine library).
#ifndef TARNEL_ENGINE_OPTION_MOVES_H
#define TARNEL_ENGINE_OPTION_MOVES_H

#include "token_sequence.h"

#include <clang/Format/Format.h>

#include <string>
#include <vector>

namespace tarnel_engine {

struct option_group {
    // The clang-format option it moves (structures name it in `decides`), or a name for options
    // that only work together, such as "Indentation" (indent width, tab width and tab use).
    std::string name;
    // Each candidate: a YAML mapping that sets the group's options to one combination of values.
    std::vector<std::string> candidates;
};

// Every group, in the order the search visits them: broad options first.
std::vector<option_group> const& option_groups();
// The groups that apply to a language: C's and C++'s all of them; another language's without
// those of constructs it lacks, with those of its own.
std::vector<option_group> const& option_groups(lexed_as language);

// The groups that apply to every structure, whatever its catalogue entry names.
bool applies_to_every_structure(std::string const& group_name);

// Applies a candidate to a style. Brace wrapping flags and custom space options are applied on
// top of the expansion of the style's preset, so that one flag moves and the others stay. False,
// and the style unchanged, when the candidate cannot be read or would make the engine crash.
bool apply_candidate(clang::format::FormatStyle& style, std::string const& candidate);

// Reads configuration text into a style, as the engine's parser does, except that a list the text
// gives (the macros used as loops) is the whole list: the parser writes a list over the first
// items of the style's and keeps the rest. True when the text could be read.
bool read_configuration(std::string const& text, clang::format::FormatStyle& style);

// Whether two styles hold the same options. The engine's own == leaves some out (the brace wrapping
// flags, the custom spaces inside parentheses, the tab width and the directive indent width among
// them), so their configuration texts are compared too.
bool same_options(clang::format::FormatStyle const& one, clang::format::FormatStyle const& other);

}  // namespace tarnel_engine

#endif
