#include "console/result_of_run.h"

#include "console/messages.h"
#include "console/show_help_info.h"
#include "console/show_what_supported.h"
#include "console/true_if_user.h"

#include <algorithm>
#include <set>

namespace console {

namespace {

// A check refused at its words still fails as a check that cannot start, apart from the 1 of
// files that would change.
bool asks_for_a_check(std::set<std::string> const& words) {
    return std::any_of(words.begin(), words.end(), [](std::string const& word) {
        std::string const name = retrieve_name_n_value_from(word, "=").first;
        return name == "--check" || name == "--diff";
    });
}

}  // namespace

int result_of_run::operator()(int argc, char** argv) const {
    // A set: a word typed twice counts once, and every later step sees the words in byte order.
    std::set<std::string> const words(argv + 1, argv + argc);
    argument_list const arguments = retrieve_valid_arguments().from(words);
    if (arguments.empty())
        return asks_for_a_check(words) ? 2 : 1;
    return do_what_user_want_based_on(arguments);
}

int result_of_run::do_what_user_want_based_on(argument_list const& arguments) const {
    detect_what_user_want const user(arguments);
    if (user.want_to_get_help()) {
        show_help_info()();
        return 0;
    }
    if (user.want_to_see_version()) {
        show_version()();
        return 0;
    }
    // Before a revision, which takes --lang and --path too and ignores other names.
    if (user.want_to_learn_style())
        return learn_style_based_on(arguments);
    if (user.want_to_revise())
        return revise_based_on(arguments);
    if (user.want_to_export_config())
        return export_config_based_on(arguments);
    if (user.want_to_import_configuration())
        return import_configuration_based_on(arguments);
    if (user.want_to_export_style())
        return export_style_based_on(arguments);
    if (user.want_to_rename_style())
        return rename_style_based_on(arguments);
    if (user.want_to_import_something())
        return import_something_based_on(arguments);
    if (user.want_to_delete_something())
        return delete_something_based_on(arguments);
    if (user.want_to_update_app())
        return update_app_based_on(arguments);
    if (user.want_to_see_what_supported()) {
        show_what_supported()();
        return 0;
    }
    say(message::not_understood() + message::usage_hint());
    return 1;
}

std::string value_of(argument_list const& arguments, std::string const& long_name,
                     std::string const& short_name) {
    std::string value;
    for (auto const& argument : arguments)
        if (argument.first == long_name || (!short_name.empty() && argument.first == short_name))
            value = argument.second;
    return value;
}

}  // namespace console
