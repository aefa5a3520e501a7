// The macros a project uses as loops (`list_for_each_entry(pos, head, member) {`): their reading
// from sources (their form and option are those of every kind of macro, project_macros.h).
#ifndef TARNEL_ENGINE_LOOP_MACROS_H
#define TARNEL_ENGINE_LOOP_MACROS_H

#include <string>
#include <vector>

namespace tarnel_engine {

// The macros that sources use as loops: a name with its arguments in parentheses, then the `{` of
// a block (on the same line or the next), at statement level, at least twice, that no class or
// structure of the sources is named after. In name order.
std::vector<std::string> loop_macros_used_in(std::vector<std::string> const& sources);

}  // namespace tarnel_engine

#endif
