// Gap-by-gap comparison: both texts are walked together, one run of white space at a time.
#include "white_space.h"

#include <algorithm>
#include <cstdlib>

namespace tarnel_engine {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }

// White space includes a backslash that continues a line: the engine moves and removes those
// when it lays out a macro again.
bool is_white(std::string const& text, std::size_t at) {
    if (is_blank(text[at]))
        return true;
    if (text[at] != '\\')
        return false;
    std::size_t next = at + 1;
    while (next < text.size() && (text[next] == ' ' || text[next] == '\t' || text[next] == '\r'))
        ++next;
    return next < text.size() && text[next] == '\n';
}

struct gap {
    long line_breaks = 0;
    long width = 0;
    std::string text;
};

// Reads the white space starting at `at` and moves `at` past it.
gap read_gap(std::string const& text, std::size_t& at) {
    gap result;
    std::size_t const begin = at;
    while (at < text.size() && is_white(text, at)) {
        if (text[at] == '\n') {
            ++result.line_breaks;
            result.width = 0;
        } else if (text[at] == '\t') {
            result.width += 8;
        } else if (text[at] != '\r' && text[at] != '\\') {
            ++result.width;
        }
        ++at;
    }
    result.text = text.substr(begin, at - begin);
    return result;
}

}  // namespace

bool only_white_space_differs(std::string const& before, std::string const& after) {
    std::size_t left = 0;
    std::size_t right = 0;
    while (true) {
        while (left < before.size() && is_white(before, left))
            ++left;
        while (right < after.size() && is_white(after, right))
            ++right;
        if (left == before.size() || right == after.size())
            return left == before.size() && right == after.size();
        if (before[left++] != after[right++])
            return false;
    }
}

unsigned long white_space_distance(std::string const& wanted, std::string const& actual) {
    // Large, yet small enough that the distances of thousands of forms still add up safely.
    unsigned long const far = 1000000000UL;
    unsigned long distance = 0;
    std::size_t left = 0;
    std::size_t right = 0;
    // Byte by byte between the gaps, so that a gap on one side only (a blank that the other text
    // lacks between the same two bytes) counts as a gap that differs, not as another text.
    while (true) {
        gap const wanted_gap = read_gap(wanted, left);
        gap const actual_gap = read_gap(actual, right);
        if (wanted_gap.text != actual_gap.text)
            distance += 16 + 8 * std::labs(wanted_gap.line_breaks - actual_gap.line_breaks) +
                        std::min(std::labs(wanted_gap.width - actual_gap.width), 16L);
        if (left == wanted.size() || right == actual.size())
            return left == wanted.size() && right == actual.size() ? distance : far;
        if (wanted[left++] != actual[right++])
            return far;
    }
}

std::string form_as_code(std::string const& form) {
    std::string code;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] == '\r') {
            code += '\n';
            if (i + 1 < form.size() && form[i + 1] == '\n')
                ++i;
        } else {
            code += form[i];
        }
    }
    std::size_t const end = code.find_last_not_of(" \t\n\v\f");
    if (end == std::string::npos)
        return std::string();
    code.erase(end + 1);
    std::size_t const first_line = code.find_first_not_of(" \t\n\v\f");
    std::size_t const line_start = code.rfind('\n', first_line);
    return line_start == std::string::npos ? code : code.substr(line_start + 1);
}

}  // namespace tarnel_engine
