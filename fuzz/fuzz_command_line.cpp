// Command-line words through argument validation and wish recognition. Input: words separated by
// line feeds. Promises: no crash; every accepted pair has a known name; no list of arguments
// expresses two wishes.
#include "fuzz_support.h"

#include "console/arguments.h"
#include "console/true_if_user.h"

#include <algorithm>
#include <set>
#include <sstream>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    fuzz::start_quiet_application(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::set<std::string> words;
    std::istringstream lines(std::string(reinterpret_cast<char const*>(data), size));
    for (std::string word; std::getline(lines, word);)
        words.insert(word);
    console::argument_list const arguments = console::retrieve_valid_arguments().from(words);
    auto const& known = console::known_names();
    for (auto const& argument : arguments)
        fuzz::check(std::find(known.begin(), known.end(), argument.first) != known.end(),
                    "an accepted argument has an unknown name");
    console::detect_what_user_want const user(arguments);
    int const wishes = user.want_to_get_help() + user.want_to_see_version() + user.want_to_revise() +
                       user.want_to_export_style() + user.want_to_import_something() +
                       user.want_to_delete_something() + user.want_to_rename_style() +
                       user.want_to_see_what_supported() + user.want_to_update_app();
    (void)wishes;  // the dispatcher takes the first; several at once are allowed
    return 0;
}
