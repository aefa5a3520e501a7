// The macros a project uses as attributes among a declaration's specifiers (`int __rcu *p;`,
// `static int __init setup(void)`, `static __always_inline` on a line of its own): their reading
// from sources (their form and option are those of every kind of macro, project_macros.h).
#ifndef TARNEL_ENGINE_ATTRIBUTE_MACROS_H
#define TARNEL_ENGINE_ATTRIBUTE_MACROS_H

#include <string>
#include <vector>

namespace tarnel_engine {

// The macros that sources use as attributes: a name standing among the specifiers of a
// declaration that holds a type of the language (`int`, `void`, `struct tag` ...), between its
// `class` or `struct` and its name, or on a line of words of its own before a declaration; at least
// twice. In name order.
std::vector<std::string> attribute_macros_used_in(std::vector<std::string> const& sources);

}  // namespace tarnel_engine

#endif
