// What a learned style's figures count: the lines of a source that stand unchanged in its
// revision, matched as a multiset of lines (a line that moved, or whose neighbours changed, still
// counts as left). A carriage return ending a line is no part of it. Header only.
#ifndef STYLE_TARNEL_LINES_LEFT_AS_THEY_ARE_H
#define STYLE_TARNEL_LINES_LEFT_AS_THEY_ARE_H

#include <map>
#include <string>

namespace style_tarnel {

// Calls `take` with each line of `text`, without its line break.
template <typename Take>
void for_each_line_of(std::string const& text, Take take) {
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::size_t const length = end > start && text[end - 1] == '\r' ? end - start - 1 : end - start;
        take(text.substr(start, length));
        start = end + 1;
    }
}

inline unsigned long lines_of(std::string const& text) {
    unsigned long lines = 0;
    for_each_line_of(text, [&](std::string const&) { ++lines; });
    return lines;
}

// The lines of `before` that stand in `after` too.
inline unsigned long lines_left_between(std::string const& before, std::string const& after) {
    std::map<std::string, long> unmatched;
    for_each_line_of(after, [&](std::string const& line) { ++unmatched[line]; });
    unsigned long left = 0;
    for_each_line_of(before, [&](std::string const& line) {
        auto const found = unmatched.find(line);
        if (found != unmatched.end() && found->second > 0) {
            --found->second;
            ++left;
        }
    });
    return left;
}

}  // namespace style_tarnel

#endif
