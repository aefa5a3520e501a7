// The macros a project uses as whole statements, without a semicolon after them (`Q_UNUSED(x)`,
// `DECLARE_BITMAP(mask, BITS)`): their reading from sources (their form and option are those of
// every kind of macro, project_macros.h).
#ifndef TARNEL_ENGINE_STATEMENT_MACROS_H
#define TARNEL_ENGINE_STATEMENT_MACROS_H

#include <string>
#include <vector>

namespace tarnel_engine {

// The macros that sources use as statements: a name with its arguments in parentheses and nothing
// after them on its line, at statement level (after a line that ends a statement or opens a
// block), followed by a line that begins a statement of its own (no `{`, no operator carrying the
// expression on), at least twice, that no class or structure of the sources is named after. In
// name order.
std::vector<std::string> statement_macros_used_in(std::vector<std::string> const& sources);

}  // namespace tarnel_engine

#endif
