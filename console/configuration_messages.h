// The command line's messages about a style as its engine's configuration file, word for word.
#ifndef STYLE_TARNEL_CONSOLE_CONFIGURATION_MESSAGES_H
#define STYLE_TARNEL_CONSOLE_CONFIGURATION_MESSAGES_H

#include <string>
#include <vector>

namespace console {
namespace message {

std::string language_without_configuration(std::string const& language);
std::string configuration_exists(std::string const& path);
std::string cannot_write_configuration(std::string const& path);
std::string cannot_tell_configuration_of(std::string const& style);
std::string cannot_import_configuration(std::string const& path, std::string const& reason);
std::string options_left_out(std::vector<std::string> const& options);
std::string options_not_shown(std::vector<std::string> const& options);

}  // namespace message
}  // namespace console

#endif
