// Whether the brackets of a source pair up, and how deep they nest. The engine formats code with
// a missing or extra brace without complaint, so this check stands before it.
#ifndef TARNEL_ENGINE_BRACKET_BALANCE_H
#define TARNEL_ENGINE_BRACKET_BALANCE_H

#include <functional>
#include <string>

#include "token_sequence.h"

namespace tarnel_engine {

// True when every (, [ and { of the code is closed by its own kind, in order. Preprocessor lines
// are skipped; of the branches of a conditional (#if ... #elif/#else ... #endif) the first counts,
// as the same code opens a block once in each branch in real sources. Strings and names of C# are
// read whole, as the language's compiler reads them. JavaScript's and Java's brackets are read
// among their own tokens: one in the text of a template literal, a regular expression or JSX text,
// or in a Java text block, does not count; a template literal's `${` opens a brace that its `}`
// closes.
bool brackets_are_balanced_in(std::string const& code, lexed_as language = lexed_as::latest_cpp);

// What the walk over the brackets tells about each token it reads (those of preprocessor lines
// included): its spelling, whether it stands in a preprocessor line, and how many brackets of the
// code outside preprocessor lines are open after it.
struct bracket_step {
    std::string const& spelling;
    bool in_directive;
    bool starts_line;
    unsigned long open;
};

// Walks the code as brackets_are_balanced_in() does and tells `visit` about every token; false
// when the brackets do not pair up (the walk still goes to the end).
bool walk_brackets_of(std::string const& code, std::function<void(bracket_step const&)> const& visit,
                      lexed_as language = lexed_as::latest_cpp);

}  // namespace tarnel_engine

#endif
