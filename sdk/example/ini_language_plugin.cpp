#include "ini_language_plugin.h"

namespace {

// The form of `structure` in the addon: the text between "S_NAME=<structure>", "S_BEG" and the
// line ending before "S_END".
std::string form_of(std::string const& structure, std::string const& addon, std::string const& EOL) {
    std::size_t at = addon.find("S_NAME=" + structure + EOL + "S_BEG" + EOL);
    if (at == std::string::npos)
        return std::string();
    std::size_t const begin = at + structure.size() + 7 + EOL.size() + 5 + EOL.size();
    std::size_t const end = addon.find(EOL + "S_END", begin);
    return addon.substr(begin, end == std::string::npos ? std::string::npos : end - begin);
}

// The blanks that stand between `before` and `after` in a form ("name = SOME": " " between "name"
// and "=").
std::string gap_between(std::string const& form, std::string const& before, std::string const& after,
                        std::string const& fallback) {
    std::size_t const left = form.find(before);
    std::size_t const right = form.find(after, left == std::string::npos ? 0 : left + before.size());
    if (left == std::string::npos || right == std::string::npos)
        return fallback;
    return form.substr(left + before.size(), right - left - before.size());
}

std::string trimmed(std::string const& text) {
    std::size_t const begin = text.find_first_not_of(" \t");
    if (begin == std::string::npos)
        return std::string();
    return text.substr(begin, text.find_last_not_of(" \t") - begin + 1);
}

}  // namespace

std::map<std::string, std::string> ini_language_plugin::forms_of_structures() {
    return {
        {"key value", R"(name *= *SOME)"},
        {"section", R"(\[ *name *\])"},
    };
}

std::string ini_language_plugin::revise(std::string const& source, std::string const& addon,
                                        line_ending_traits const& traits) {
    return revise_where(source, addon, traits, [](unsigned long) { return true; });
}

std::string ini_language_plugin::revise_lines(std::string const& source, std::string const& addon,
                                              line_ending_traits const& traits, std::vector<line_range> const& ranges) {
    // Each line is formatted alone: the lines outside the ranges come back byte for byte, and a
    // formatted line formatted again stays as it is.
    return revise_where(source, addon, traits, [&](unsigned long line) {
        for (line_range const& range : ranges)
            if (range.first <= line && line <= range.last)
                return true;
        return false;
    });
}

std::string ini_language_plugin::revise_where(std::string const& source, std::string const& addon,
                                              line_ending_traits const& traits,
                                              std::function<bool(unsigned long)> const& wanted) {
    // This example formats 8-bit text only; other encodings come back as they are.
    if (traits.space != " " || source.find('\0') != std::string::npos)
        return source;
    std::string const addon_EOL = addon.find("\r\n") != std::string::npos ? "\r\n" : "\n";
    std::string const pair_form = form_of("key value", addon, addon_EOL);
    std::string const section_form = form_of("section", addon, addon_EOL);
    std::string const before_equals = gap_between(pair_form, "name", "=", " ");
    std::string const after_equals = gap_between(pair_form, "=", "SOME", " ");
    std::string const inside_brackets = gap_between(section_form, "[", "name", "");

    std::string result;
    std::size_t begin = 0;
    for (unsigned long number = 1; begin < source.size(); ++number) {
        std::size_t end = traits.EOL.empty() ? std::string::npos : source.find(traits.EOL, begin);
        std::size_t const next = end == std::string::npos ? source.size() : end + traits.EOL.size();
        if (!wanted(number)) {
            result += source.substr(begin, next - begin);
            begin = next;
            continue;
        }
        std::string const line = trimmed(source.substr(begin, (end == std::string::npos ? source.size() : end) - begin));
        std::string formatted = line;
        if (!line.empty() && line[0] == '[' && line.back() == ']') {
            formatted = "[" + inside_brackets + trimmed(line.substr(1, line.size() - 2)) + inside_brackets + "]";
        } else if (!line.empty() && line[0] != ';' && line[0] != '#' && line.find('=') != std::string::npos) {
            std::size_t const equals = line.find('=');
            std::string const value = trimmed(line.substr(equals + 1));
            formatted = trimmed(line.substr(0, equals)) + before_equals + "=" + (value.empty() ? "" : after_equals + value);
        }
        result += formatted;
        if (end != std::string::npos)
            result += traits.EOL;
        begin = next;
    }
    return result;
}
