// A line ends at `\n`; a `\r` before it belongs to the line break, not to the line.
#include "text_lines.h"

#include <sstream>

namespace tarnel_engine {

std::vector<std::string> lines_of(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    std::string line;
    while (std::getline(stream, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::string trimmed(std::string const& line) {
    std::size_t const begin = line.find_first_not_of(" \t\r");
    if (begin == std::string::npos)
        return std::string();
    return line.substr(begin, line.find_last_not_of(" \t\r") - begin + 1);
}

bool starts_with(std::string const& text, std::string const& prefix) { return text.compare(0, prefix.size(), prefix) == 0; }

}  // namespace tarnel_engine
