// Follows the engine's own bookkeeping: the most branches seen per nesting level, multiplied.
#include "conditional_passes.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace tarnel_engine {

namespace {

unsigned long const most_lines_read = 100000;

// The directive's name after `#` and blanks, or nothing for a line that is no directive.
std::string directive_of(std::string const& line) {
    std::size_t at = line.find_first_not_of(" \t");
    if (at == std::string::npos || line[at] != '#')
        return std::string();
    at = line.find_first_not_of(" \t", at + 1);
    if (at == std::string::npos)
        return std::string();
    std::size_t const end = line.find_first_not_of("abcdefghijklmnopqrstuvwxyz", at);
    return line.substr(at, end == std::string::npos ? std::string::npos : end - at);
}

unsigned long passes_and_lines(std::string const& code, unsigned long& lines) {
    std::vector<unsigned long> most_at_level;
    std::vector<unsigned long> open_chains;
    std::istringstream stream(code);
    std::string line;
    lines = 0;
    while (std::getline(stream, line)) {
        ++lines;
        std::string const directive = directive_of(line);
        if (directive.empty())
            continue;
        if (directive.compare(0, 2, "if") == 0) {
            open_chains.push_back(1);
            if (most_at_level.size() < open_chains.size())
                most_at_level.push_back(1);
        } else if ((directive.compare(0, 4, "elif") == 0 || directive == "else") && !open_chains.empty()) {
            ++open_chains.back();
        } else if (directive == "endif" && !open_chains.empty()) {
            unsigned long& most = most_at_level[open_chains.size() - 1];
            most = std::max(most, open_chains.back());
            open_chains.pop_back();
        }
    }
    unsigned long passes = 1;
    for (unsigned long most : most_at_level)
        passes = std::min(passes * most, most_lines_read + 1);
    return passes;
}

}  // namespace

bool engine_reads_at_most_a_bounded_amount_of(std::string const& code) {
    unsigned long lines = 0;
    unsigned long const passes = passes_and_lines(code, lines);
    return passes * lines <= most_lines_read;
}

}  // namespace tarnel_engine
