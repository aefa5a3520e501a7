// The command line's messages about learning a style, word for word (beside messages.h, which
// holds the others).
#ifndef STYLE_TARNEL_CONSOLE_LEARNING_MESSAGES_H
#define STYLE_TARNEL_CONSOLE_LEARNING_MESSAGES_H

#include <string>

namespace console {
namespace message {

std::string language_cannot_learn(std::string const& language);
std::string no_files_to_learn_from();
std::string nothing_learned(std::string const& language);
std::string learning_interrupted();
std::string cannot_install_learned_style(std::string const& style);
// The progress line's text, without the carriage return before it.
std::string learning_progress(unsigned percent);
// The one line a successful run prints on standard output; `forms_of` names the installed style
// whose forms the new one took, when it did, and `configuration_of` the project's own engine
// configuration file, when its forms were taken.
std::string style_learned(std::string const& style, std::string const& language, std::size_t files,
                          unsigned long lines, unsigned long lines_left, std::string const& forms_of,
                          std::string const& configuration_of);

}  // namespace message
}  // namespace console

#endif
