#include "engine/plugin_answer.h"

#include "engine/crash_recovery.h"
#include "engine/traits_of.h"

#include <algorithm>

namespace {

// White space in any encoding: the zero bytes of UTF-16 and UTF-32 spaces count as part of them.
bool holds_only_white_space(std::string const& text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f' || c == '\0';
    });
}

}  // namespace

plugin_answer ask(interface_to_language_plugin& plugin, std::string const& text,
                  std::string const& addon_text, std::string& result) {
    bool threw = false;
    int signal = 0;
    line_ending_traits const traits = detail::traits_of()(text);
    bool const survived_it = survived(
        [&] {
            try {
                result = plugin.revise(text, addon_text, traits);
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
