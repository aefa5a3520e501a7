// How deep a source makes the engine's parser recurse, and how many tokens it holds. The parser
// descends once for every open bracket, every `?` and `<` of a statement, every control statement
// without braces in a row (`if (a) if (b) ...`, `else if` chains) and every prefix operator in a
// row; at tens of thousands of levels it overflows its stack.
#ifndef TARNEL_ENGINE_NESTING_DEPTH_H
#define TARNEL_ENGINE_NESTING_DEPTH_H

#include "token_sequence.h"

#include <string>

namespace tarnel_engine {

struct nesting_reading {
    // The largest of: brackets open at once (in the code, and in one preprocessor line), `?` in
    // one statement (a comma after the last `:` starts afresh), `<` in one statement, control
    // keywords in a row without a brace, and prefix operators in a row.
    unsigned long deepest = 0;
    unsigned long tokens = 0;
};

// JavaScript and Java are read among their own tokens (as brackets_are_balanced_in() reads them):
// a bracket in a template literal's text, a regular expression or a text block opens nothing.
nesting_reading nesting_of(std::string const& code, lexed_as language = lexed_as::latest_cpp);

}  // namespace tarnel_engine

#endif
