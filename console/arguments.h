// Command-line words become name/value pairs ("--lang=C" -> "--lang", "C"), validated against the
// known names. Nothing here acts; recognising what the user wants is in true_if_user.h.
#ifndef STYLE_TARNEL_CONSOLE_ARGUMENTS_H
#define STYLE_TARNEL_CONSOLE_ARGUMENTS_H

#include <set>
#include <string>
#include <utility>
#include <vector>

// One parsed argument: its name ("--lang", "-l") and its value, possibly empty.
using pair = std::pair<std::string, std::string>;

namespace console {

using argument_list = std::vector<pair>;

// The twenty names the program knows, short and long forms apart.
std::vector<std::string> const& known_names();

}  // namespace console

// Splits a word at the first `separator`. Without one the whole word is the name. With one,
// an empty name or an empty value leaves the name empty: the word is malformed.
pair retrieve_name_n_value_from(std::string const& word, std::string const& separator);

namespace console {

class retrieve_valid_arguments {
public:
    // The pairs of the words in their (sorted) order; empty, with the message already written to
    // standard error, when a word is malformed or a name is unknown.
    argument_list from(std::set<std::string> const& words) const;
};

}  // namespace console

#endif
