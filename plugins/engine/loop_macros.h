// The macros a project uses as loops (`list_for_each_entry(pos, head, member) {`): the engine takes
// them for function calls unless it is told their names, so a style carries them in the form of a
// structure of their own, a function whose body holds one loop for each macro (internal to the
// engine library).
#ifndef TARNEL_ENGINE_LOOP_MACROS_H
#define TARNEL_ENGINE_LOOP_MACROS_H

#include <string>
#include <vector>

namespace tarnel_engine {

// The structure's name, as catalogues and addons name it.
extern std::string const loop_macros_structure;

// The form's code for these macros, in the catalogue's own layout (a style lays it out after);
// names that are no words or are keywords left out.
std::string loop_macros_form_for(std::vector<std::string> const& macros);

// The expression every form of the structure matches: the function, then one or more loops, each
// opened by any name.
std::string loop_macros_expression();

// The macros a form names, in its order, each once; keywords are no macros and are left out.
std::vector<std::string> loop_macros_named_in(std::string const& form);

// The engine's option for them, in its configuration syntax ("{ForEachMacros: [a, b]}").
std::string loop_macros_option_for(std::vector<std::string> const& macros);

// The macros that sources use as loops: a name with its arguments in parentheses, then the `{` of
// a block (on the same line or the next), at statement level, at least twice, that no class or
// structure of the sources is named after. In name order.
std::vector<std::string> loop_macros_used_in(std::vector<std::string> const& sources);

}  // namespace tarnel_engine

#endif
