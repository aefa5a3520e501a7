// JavaScript ends a statement at a line break where the next token could not continue it, and
// never lets some tokens stand across one (`return`, `throw`, `break`, `continue`, `yield`,
// `async` before it, `++`, `--` and `=>` after it): a line break added or removed can change what
// a program does with the same tokens. This check keeps a revision from doing so.
#ifndef TARNEL_ENGINE_SEMICOLON_INSERTION_H
#define TARNEL_ENGINE_SEMICOLON_INSERTION_H

#include <string>

namespace tarnel_engine {

// Whether every line break that `after` adds to `before` or takes from it stands between two
// tokens where no semicolon can be inserted either way: after a token that cannot end a statement
// (an opening bracket, a comma, a binary operator, …) or before one that cannot begin one and
// continues the statement (a closing bracket, `.`, a binary operator other than those that may
// begin an expression, …). Both texts hold the same tokens.
bool line_breaks_keep_the_meaning_of(std::string const& before, std::string const& after);

}  // namespace tarnel_engine

#endif
