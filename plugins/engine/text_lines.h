// Text cut into lines, and what a line begins with once its blanks are off: how the readings of
// forms and of a project's code look at text line by line.
#ifndef TARNEL_ENGINE_TEXT_LINES_H
#define TARNEL_ENGINE_TEXT_LINES_H

#include <string>
#include <vector>

namespace tarnel_engine {

// The lines of `text`, each without its line break (`\n`, or `\r\n`).
std::vector<std::string> lines_of(std::string const& text);

// `line` without the blanks, tabs and carriage returns at either end.
std::string trimmed(std::string const& line);

// Whether `text` begins with `prefix`.
bool starts_with(std::string const& text, std::string const& prefix);

}  // namespace tarnel_engine

#endif
