// Recognising the one wish a list of arguments expresses, by counting the names it holds.
#ifndef STYLE_TARNEL_CONSOLE_TRUE_IF_USER_H
#define STYLE_TARNEL_CONSOLE_TRUE_IF_USER_H

#include "console/arguments.h"

// How many pairs have either name (an empty short name matches nothing).
class quantity_of {
public:
    quantity_of(std::string long_name, std::string short_name = std::string())
        : long_name(std::move(long_name)), short_name(std::move(short_name)) {}
    std::size_t in(console::argument_list const& arguments) const;

private:
    std::string long_name;
    std::string short_name;
};

namespace console {

class true_if_user {
public:
    bool want_to_get_help(argument_list const& arguments) const;
    bool want_to_see_version(argument_list const& arguments) const;
    bool want_to_revise(argument_list const& arguments) const;
    bool want_to_export_style(argument_list const& arguments) const;
    bool want_to_import_something(argument_list const& arguments) const;
    bool want_to_delete_something(argument_list const& arguments) const;
    bool want_to_rename_style(argument_list const& arguments) const;
    bool want_to_see_what_supported(argument_list const& arguments) const;
    bool want_to_update_app(argument_list const& arguments) const;
    bool want_to_learn_style(argument_list const& arguments) const;
    bool want_to_export_config(argument_list const& arguments) const;
    bool want_to_import_configuration(argument_list const& arguments) const;

    // The list is one pair, named by either name, without a value.
    bool is_there_only_one_argument_without_value_with_names(std::string const& long_name,
                                                             std::string const& short_name,
                                                             argument_list const& arguments) const;
};

// The same wishes, asked of one list.
class detect_what_user_want {
public:
    explicit detect_what_user_want(argument_list arguments) : arguments(std::move(arguments)) {}
    bool want_to_get_help() const { return true_if_user().want_to_get_help(arguments); }
    bool want_to_see_version() const { return true_if_user().want_to_see_version(arguments); }
    bool want_to_revise() const { return true_if_user().want_to_revise(arguments); }
    bool want_to_export_style() const { return true_if_user().want_to_export_style(arguments); }
    bool want_to_import_something() const { return true_if_user().want_to_import_something(arguments); }
    bool want_to_delete_something() const { return true_if_user().want_to_delete_something(arguments); }
    bool want_to_rename_style() const { return true_if_user().want_to_rename_style(arguments); }
    bool want_to_see_what_supported() const { return true_if_user().want_to_see_what_supported(arguments); }
    bool want_to_update_app() const { return true_if_user().want_to_update_app(arguments); }
    bool want_to_learn_style() const { return true_if_user().want_to_learn_style(arguments); }
    bool want_to_export_config() const { return true_if_user().want_to_export_config(arguments); }
    bool want_to_import_configuration() const { return true_if_user().want_to_import_configuration(arguments); }

private:
    argument_list arguments;
};

}  // namespace console

#endif
