// Follows the engine's own bookkeeping: the most branches seen per nesting level, multiplied.
#include "conditional_passes.h"

#include <algorithm>
#include <sstream>

namespace tarnel_engine {

namespace {

unsigned long const most_passes_counted = 1000001;

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

}  // namespace

unsigned long conditional_branches::passes() const {
    unsigned long passes = 1;
    for (unsigned long most : most_at_level)
        passes = std::min(passes * most, most_passes_counted);
    return passes;
}

conditional_branches conditional_branches::joined_with(conditional_branches const& other) const {
    conditional_branches joined = *this;
    joined.lines += other.lines;
    joined.paired = paired && other.paired;
    joined.most_at_level.resize(std::max(most_at_level.size(), other.most_at_level.size()), 1);
    for (std::size_t level = 0; level < other.most_at_level.size(); ++level)
        joined.most_at_level[level] = std::max(joined.most_at_level[level], other.most_at_level[level]);
    return joined;
}

conditional_branches conditional_branches_of(std::string const& code) {
    conditional_branches branches;
    std::vector<unsigned long> open_chains;
    std::istringstream stream(code);
    std::string line;
    while (std::getline(stream, line)) {
        ++branches.lines;
        std::string const directive = directive_of(line);
        if (directive.empty())
            continue;
        if (directive.compare(0, 2, "if") == 0) {
            open_chains.push_back(1);
            if (branches.most_at_level.size() < open_chains.size())
                branches.most_at_level.push_back(1);
        } else if (directive.compare(0, 4, "elif") == 0 || directive == "else") {
            if (open_chains.empty())
                branches.paired = false;
            else
                ++open_chains.back();
        } else if (directive == "endif") {
            if (open_chains.empty()) {
                branches.paired = false;
                continue;
            }
            unsigned long& most = branches.most_at_level[open_chains.size() - 1];
            most = std::max(most, open_chains.back());
            open_chains.pop_back();
        }
    }
    branches.paired = branches.paired && open_chains.empty();
    return branches;
}

}  // namespace tarnel_engine
