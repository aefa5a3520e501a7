#include "console/configuration_messages.h"

namespace console {
namespace message {

namespace {

std::string listed(std::vector<std::string> const& options) {
    std::string list;
    for (std::string const& option : options)
        list += (list.empty() ? "" : ", ") + option;
    return list;
}

}  // namespace

std::string language_without_configuration(std::string const& language) {
    return "Sorry, the plugin of language '" + language +
           "' has no engine configuration, so its styles cannot be exported as one or imported from one.";
}
std::string configuration_exists(std::string const& path) {
    return "There is already a file '" + path + "'. Please add '--force' to replace it.";
}
std::string cannot_write_configuration(std::string const& path) { return "I cannot write file '" + path + "'."; }
std::string cannot_tell_configuration_of(std::string const& style) {
    return "Sorry, I cannot tell the engine configuration of style '" + style + "'.";
}
std::string cannot_import_configuration(std::string const& path, std::string const& reason) {
    return "I cannot make a style of '" + path + "'" + (reason.empty() ? std::string() : ": " + reason) + ".";
}
std::string options_left_out(std::vector<std::string> const& options) {
    return "Left out, as they change more than white space: " + listed(options) + ".";
}
std::string options_not_shown(std::vector<std::string> const& options) {
    return "Shown by no form of the style, so not kept: " + listed(options) + ".";
}

}  // namespace message
}  // namespace console
