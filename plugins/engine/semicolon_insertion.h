// JavaScript ends a statement at a line break where the next token could not continue it, and
// never lets some tokens stand across one (`return`, `throw`, `break`, `continue`, `yield`,
// `async` before it, `++`, `--` and `=>` after it): a line break added or removed can change what
// a program does with the same tokens. This check keeps a revision from doing so.
#ifndef TARNEL_ENGINE_SEMICOLON_INSERTION_H
#define TARNEL_ENGINE_SEMICOLON_INSERTION_H

#include <string>

namespace tarnel_engine {

// Whether every line break that `after` adds to `before` or takes from it leaves the program as it
// is: never after `return`, `throw`, `break`, `continue`, `yield`, `async` or a modifier of
// TypeScript, never before `++`, `--` or `=>`; before `(`, `[`, a template literal, `!` or `<` only
// after a token that cannot end an expression; and taken away only where no statement can end at
// it (after an opening bracket, a comma or a binary operator, before a closing bracket, `.` or a
// binary operator, before a block's brace, `else`, `catch`, `finally`, after the `)` of a
// condition). Both texts hold the same tokens; false too where one reads JSX the other does not.
bool line_breaks_keep_the_meaning_of(std::string const& before, std::string const& after);

}  // namespace tarnel_engine

#endif
