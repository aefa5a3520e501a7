// The macros a project uses where the engine expects other code: as loops
// (`list_for_each_entry(pos, head, member) {`), as whole statements without a semicolon
// (`Q_UNUSED(x)`) and as attributes among a declaration's specifiers (`static int __init f(void)`).
// The engine takes them for function calls or names unless it is told theirs, so a style carries
// each kind in the form of a structure of its own, one use of each macro in a row, and the form's
// text names them (internal to the engine library).
#ifndef TARNEL_ENGINE_PROJECT_MACROS_H
#define TARNEL_ENGINE_PROJECT_MACROS_H

#include <map>
#include <string>
#include <vector>

namespace tarnel_engine {

// One kind of macro: how its form is written and which option of the engine holds its names.
struct macro_kind {
    // The structure's name, as catalogues and addons name it.
    std::string structure;
    // The engine's option that lists the names ("ForEachMacros").
    std::string option;
    // The form's code: the head, then for each macro the code before its name and the code after
    // it, then the tail.
    std::string head;
    std::string before;
    std::string after;
    std::string tail;
    // The macros sources use this way, in name order (each kind's own reading of code).
    std::vector<std::string> (*used_in)(std::vector<std::string> const& sources);
};

// The kinds, loops first.
std::vector<macro_kind> const& macro_kinds();
macro_kind const& loop_macros();
macro_kind const& statement_macros();
macro_kind const& attribute_macros();
// The kind whose structure has this name; none for other structures.
macro_kind const* macro_kind_of(std::string const& structure);

// The form's code for these macros, in the catalogue's own layout (a style lays it out after);
// names that are no words or are keywords left out.
std::string macros_form_for(macro_kind const& kind, std::vector<std::string> const& macros);

// The expression every form of the kind matches: the head, then one or more uses, each of any
// name, then the tail.
std::string macros_expression(macro_kind const& kind);

// The macros a form names, in its order, each once; keywords are no macros and are left out.
std::vector<std::string> macros_named_in(macro_kind const& kind, std::string const& form);

// The engine's option for them, in its configuration syntax ("{ForEachMacros: [a, b]}").
std::string macros_option_for(macro_kind const& kind, std::vector<std::string> const& macros);

// Helpers of the kinds' readings of code.
namespace macro_reading {
bool is_name(std::string const& token);
// Words that open statements or expressions of their own, or are placeholders of the forms: never
// a macro's name.
bool is_keyword(std::string const& word);
// The name that opens `text` when what follows it is its arguments in parentheses and then
// `ending` (blanks allowed between); empty otherwise.
std::string name_opening(std::string const& text, std::string const& ending);
// Whether a class, structure or union of the sources is named `name` (a constructor has the shape
// of a macro's use).
bool names_a_type(std::string const& name, std::vector<std::string> const& sources);
// The names used at least twice that no class, structure or union of the sources is named after,
// in name order: a macro's use has the shape of a constructor's call.
std::vector<std::string> used_twice_naming_no_type(std::map<std::string, int> const& uses,
                                                    std::vector<std::string> const& sources);
}  // namespace macro_reading

}  // namespace tarnel_engine

#endif
