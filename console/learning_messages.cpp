#include "console/learning_messages.h"

namespace console {
namespace message {

namespace {

// Tenths of a percent, rounded down: a style that changes one line of a thousand and one never
// shows 100.0%.
std::string share(unsigned long part, unsigned long whole) {
    if (whole == 0)
        return "100.0%";
    unsigned long long const tenths = 1000ULL * part / whole;
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + "%";
}

}  // namespace

std::string language_cannot_learn(std::string const& language) {
    return "Language '" + language + "' cannot learn styles.";
}
std::string no_files_to_learn_from() { return "No files was found, no style was learned."; }
std::string nothing_learned(std::string const& language) {
    return "No style was learned: the files found are no code of language '" + language + "'.";
}
std::string learning_interrupted() { return "Learning was interrupted by user, no style was installed."; }
std::string cannot_install_learned_style(std::string const& style) {
    return "I cannot install style '" + style + "'. Please make sure the addons directory exists and you can write in it.";
}
std::string learning_progress(unsigned percent) { return "Learning... " + std::to_string(percent) + "%"; }

std::string style_learned(std::string const& style, std::string const& language, std::size_t files,
                          unsigned long lines, unsigned long lines_left, std::string const& forms_of,
                          std::string const& configuration_of) {
    std::string const which = !forms_of.empty()           ? "style '" + forms_of + "'"
                              : !configuration_of.empty() ? "the project's own '" + configuration_of + "'"
                                                          : std::string();
    std::string const taken = which.empty() ? std::string()
                                            : " It has the forms of " + which +
                                                  ", which leave more of them as they are than any rules learned.";
    return "Style '" + style + "' of language '" + language + "' was learned from " + std::to_string(files) +
           (files == 1 ? " file" : " files") + ": it leaves " + share(lines_left, lines) + " of their " +
           std::to_string(lines) + " lines as they are." + taken;
}

}  // namespace message
}  // namespace console
