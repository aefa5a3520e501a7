#include "console/true_if_user.h"

#include <algorithm>

std::size_t quantity_of::in(console::argument_list const& arguments) const {
    return static_cast<std::size_t>(std::count_if(arguments.begin(), arguments.end(), [&](pair const& argument) {
        return argument.first == long_name || (!short_name.empty() && argument.first == short_name);
    }));
}

namespace console {

namespace {

std::size_t languages(argument_list const& arguments) { return quantity_of("--lang", "-l").in(arguments); }
std::size_t styles(argument_list const& arguments) { return quantity_of("--style", "-s").in(arguments); }

// A language and a style, and one pair of `name`, and nothing else.
bool one_style_with(std::string const& name, argument_list const& arguments) {
    return arguments.size() == 3 && languages(arguments) == 1 && styles(arguments) == 1 &&
           quantity_of(name).in(arguments) == 1;
}

}  // namespace

bool true_if_user::is_there_only_one_argument_without_value_with_names(
    std::string const& long_name, std::string const& short_name, argument_list const& arguments) const {
    return arguments.size() == 1 &&
           (arguments[0].first == long_name || (!short_name.empty() && arguments[0].first == short_name)) &&
           arguments[0].second.empty();
}

bool true_if_user::want_to_get_help(argument_list const& arguments) const {
    return is_there_only_one_argument_without_value_with_names("--help", "-h", arguments);
}

bool true_if_user::want_to_see_version(argument_list const& arguments) const {
    return is_there_only_one_argument_without_value_with_names("--version", "-v", arguments);
}

bool true_if_user::want_to_revise(argument_list const& arguments) const {
    // Other known names are tolerated here and ignored by the revision. The style comes from
    // --lang and --style, from --addon alone, or from the project's .style-tarnel file; a file's
    // extension may tell its language.
    std::size_t const addons = quantity_of("--addon").in(arguments);
    bool const style_named = addons == 0 ? styles(arguments) <= 1 && languages(arguments) <= 1
                                         : addons == 1 && languages(arguments) == 0 && styles(arguments) == 0;
    return style_named && quantity_of("--path", "-p").in(arguments) >= 1 &&
           quantity_of("--force", "-f").in(arguments) <= 1 && quantity_of("--exts").in(arguments) <= 1 &&
           quantity_of("--check").in(arguments) <= 1 && quantity_of("--diff").in(arguments) <= 1 &&
           quantity_of("--assume-filename").in(arguments) <= 1;
}

bool true_if_user::want_to_learn_style(argument_list const& arguments) const {
    std::size_t const paths = quantity_of("--path", "-p").in(arguments);
    std::size_t const extensions = quantity_of("--exts").in(arguments);
    return quantity_of("--learn").in(arguments) == 1 && languages(arguments) == 1 && paths >= 1 && extensions <= 1 &&
           arguments.size() == 2 + paths + extensions;
}

bool true_if_user::want_to_export_style(argument_list const& arguments) const {
    return one_style_with("--export", arguments);
}

bool true_if_user::want_to_export_config(argument_list const& arguments) const {
    // The style from --lang and --style, or from --addon alone; --force replaces an older file.
    std::size_t const addons = quantity_of("--addon").in(arguments);
    std::size_t const forced = quantity_of("--force", "-f").in(arguments);
    bool const style_named = addons == 0 ? languages(arguments) == 1 && styles(arguments) == 1
                                         : addons == 1 && languages(arguments) == 0 && styles(arguments) == 0;
    return quantity_of("--export-config").in(arguments) == 1 && forced <= 1 && style_named &&
           arguments.size() == 1 + forced + (addons == 0 ? 2 : 1);
}

bool true_if_user::want_to_import_configuration(argument_list const& arguments) const {
    return one_style_with("--import", arguments);
}

bool true_if_user::want_to_rename_style(argument_list const& arguments) const {
    return one_style_with("--rename", arguments);
}

bool true_if_user::want_to_import_something(argument_list const& arguments) const {
    return arguments.size() == 1 && quantity_of("--import").in(arguments) == 1;
}

bool true_if_user::want_to_delete_something(argument_list const& arguments) const {
    bool const language = arguments.size() == 2 && languages(arguments) == 1 &&
                          quantity_of("--delete").in(arguments) == 1;
    return language || one_style_with("--delete", arguments);
}

bool true_if_user::want_to_update_app(argument_list const& arguments) const {
    return arguments.size() == 1 && quantity_of("--update").in(arguments) == 1;
}

bool true_if_user::want_to_see_what_supported(argument_list const& arguments) const {
    return is_there_only_one_argument_without_value_with_names("--ls", "", arguments);
}

}  // namespace console
