// Carries out the one wish that the command line expresses, through the kernel, and words every
// outcome. The result is the process's exit status: 0 on success, 1 otherwise.
#ifndef STYLE_TARNEL_CONSOLE_RESULT_OF_RUN_H
#define STYLE_TARNEL_CONSOLE_RESULT_OF_RUN_H

#include "console/arguments.h"

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
};

// The last value given under either name; empty when neither was given.
std::string value_of(argument_list const& arguments, std::string const& long_name,
                     std::string const& short_name = std::string());

}  // namespace console

#endif
