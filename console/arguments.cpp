#include "console/arguments.h"

#include "console/messages.h"

#include <algorithm>

namespace console {

std::vector<std::string> const& known_names() {
    static std::vector<std::string> const names{
        "-h", "--help", "-v", "--version", "-l", "--lang", "-s", "--style", "-p", "--path",
        "-f", "--force", "--exts", "--import", "--export", "--delete", "--rename", "--ls",
        "--update", "--check", "--diff", "--addon", "--assume-filename", "--learn", "--exclude",
        "--no-gitignore", "--quiet", "--lines", "--changed", "--export-config"};
    return names;
}

}  // namespace console

pair retrieve_name_n_value_from(std::string const& word, std::string const& separator) {
    std::size_t const at = word.find(separator);
    if (at == std::string::npos)
        return pair(word, std::string());
    pair result(word.substr(0, at), word.substr(at + separator.size()));
    if (result.first.empty() || result.second.empty())
        result.first.clear();
    return result;
}

namespace console {

argument_list retrieve_valid_arguments::from(std::set<std::string> const& words) const {
    argument_list arguments;
    for (auto const& word : words) {
        pair argument = retrieve_name_n_value_from(word, "=");
        if (argument.first.empty()) {
            say(message::argument_not_in_form_name_value() + message::usage_hint());
            return argument_list();
        }
        arguments.push_back(std::move(argument));
    }
    auto const& known = known_names();
    bool const all_known = std::all_of(arguments.begin(), arguments.end(), [&](pair const& argument) {
        return std::find(known.begin(), known.end(), argument.first) != known.end();
    });
    if (!all_known) {
        say(message::unknown_arguments() + message::usage_hint());
        return argument_list();
    }
    return arguments;
}

}  // namespace console
