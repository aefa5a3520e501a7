// Carries out the one wish that the command line expresses, through the kernel, and words every
// outcome. The result is the process's exit status: 0 on success, 1 otherwise.
#ifndef STYLE_TARNEL_CONSOLE_RESULT_OF_RUN_H
#define STYLE_TARNEL_CONSOLE_RESULT_OF_RUN_H

#include "console/arguments.h"
#include "core/style_description.h"

namespace console {

class result_of_run {
public:
    int operator()(int argc, char** argv) const;

    int do_what_user_want_based_on(argument_list const& arguments) const;

    int revise_based_on(argument_list const& arguments) const;
    int export_style_based_on(argument_list const& arguments) const;
    int rename_style_based_on(argument_list const& arguments) const;
    int import_something_based_on(argument_list const& arguments) const;
    int delete_something_based_on(argument_list const& arguments) const;
    int update_app_based_on(argument_list const& arguments) const;
    int learn_style_based_on(argument_list const& arguments) const;
    int export_config_based_on(argument_list const& arguments) const;
    int import_configuration_based_on(argument_list const& arguments) const;
};

// Whether the file at `path` (absolute) is a style addon of an installed language that can be used
// as it is, without importing it: refused with the same checks and words as an import, said on
// standard error. `description` gets its style and language.
bool addon_file_is_usable(std::string const& path, style_description& description);

// Why a file that is only read cannot be: missing (with the usage hint), not a regular file,
// or not readable (permissions, or the system's reason). Empty when it can be read.
std::string why_file_cannot_be_read(std::string const& path);

// The last value given under either name; empty when neither was given.
std::string value_of(argument_list const& arguments, std::string const& long_name,
                     std::string const& short_name = std::string());

}  // namespace console

#endif
