#include "engine/plugin_answer.h"

#include "engine/crash_recovery.h"
#include "engine/traits_of.h"

#include <algorithm>
#include <functional>

namespace {

// White space in any encoding: the zero bytes of UTF-16 and UTF-32 spaces count as part of them.
bool holds_only_white_space(std::string const& text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f' || c == '\0';
    });
}

// The plugin's answer to `revise`, a call of one of its interfaces with the text's traits.
plugin_answer answer_of(std::function<std::string(line_ending_traits const&)> const& revise,
                        std::string const& text, std::string& result) {
    bool threw = false;
    int signal = 0;
    line_ending_traits const traits = detail::traits_of()(text);
    bool const survived_it = survived(
        [&] {
            try {
                result = revise(traits);
            } catch (...) {
                threw = true;
            }
        },
        signal);
    if (!survived_it)
        return plugin_answer::crashed;
    if (threw)
        return plugin_answer::refused;
    if (result == STYLE_TARNEL_SYNTAX_ERROR_TEXT)
        return plugin_answer::refused;
    if (result.empty() && !holds_only_white_space(text))
        return plugin_answer::refused;
    return plugin_answer::revised;
}

// The ranges as a plugin may expect them: in ascending order, those that overlap or touch joined
// (the command line's words come sorted as text: "10:12" before "2:3").
std::vector<line_range> in_order(std::vector<line_range> ranges) {
    std::sort(ranges.begin(), ranges.end(), [](line_range const& a, line_range const& b) { return a.first < b.first; });
    std::vector<line_range> joined;
    for (line_range const& range : ranges) {
        if (!joined.empty() && range.first <= joined.back().last + 1)
            joined.back().last = std::max(joined.back().last, range.last);
        else
            joined.push_back(range);
    }
    return joined;
}

}  // namespace

plugin_answer ask(interface_to_language_plugin& plugin, std::string const& text,
                  std::string const& addon_text, std::string& result) {
    return answer_of([&](line_ending_traits const& traits) { return plugin.revise(text, addon_text, traits); },
                     text, result);
}

plugin_answer ask_for_lines(interface_to_range_revision& plugin, std::string const& text,
                            std::string const& addon_text, std::vector<line_range> const& ranges,
                            std::string& result) {
    std::vector<line_range> const lines = in_order(ranges);
    return answer_of(
        [&](line_ending_traits const& traits) { return plugin.revise_lines(text, addon_text, traits, lines); },
        text, result);
}
