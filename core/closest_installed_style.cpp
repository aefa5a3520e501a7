#include "core/closest_installed_style.h"

#include "core/installed_files.h"
#include "core/style_addon.h"
#include "lines_left_as_they_are.h"

#include <utility>

namespace {

// Sources measured at most on each style before the best is counted on all of them.
std::size_t const most_sources_measured = 100;

// Traits as the host gives them for 8-bit text: the first line break, and a blank.
line_ending_traits traits_of(std::string const& source) {
    std::size_t const at = source.find_first_of("\r\n");
    if (at == std::string::npos || source[at] == '\n')
        return {"\n", " "};
    return {at + 1 < source.size() && source[at + 1] == '\n' ? "\r\n" : "\r", " "};
}

}  // namespace

unsigned long find_closest_installed_style::lines_left_by(std::string const& addon,
                                                          std::vector<std::string> const& sources,
                                                          std::size_t step) const {
    unsigned long left = 0;
    for (std::size_t i = 0; i < sources.size() && !stop_requested(); i += step) {
        std::string const revised = plugin.revise(sources[i], addon, traits_of(sources[i]));
        // A source the style cannot revise keeps its lines, as a revision run leaves it.
        left += revised.empty() || revised == STYLE_TARNEL_SYNTAX_ERROR_TEXT
                    ? style_tarnel::lines_of(sources[i])
                    : style_tarnel::lines_left_between(sources[i], revised);
    }
    plugin.end_of_revision();
    return left;
}

closer_installed_style find_closest_installed_style::than(std::string const& learned_addon,
                                                          unsigned long learned_lines,
                                                          unsigned long learned_lines_left,
                                                          std::vector<std::string> const& sources) const {
    closer_installed_style closest;
    std::vector<std::pair<std::string, std::string>> installed;  // style, addon text
    first_addon_where([&](std::string const& file_name, style_description const& description) {
        if (description.language == language)
            if (auto const text = addon_text_of(file_name))
                installed.emplace_back(description.style, *text);
        return false;
    });
    if (installed.empty() || sources.empty())
        return closest;
    std::size_t const step = (sources.size() + most_sources_measured - 1) / most_sources_measured;
    unsigned long best = lines_left_by(learned_addon, sources, step);
    std::pair<std::string, std::string> const* winner = nullptr;
    for (auto const& style : installed) {
        unsigned long const left = lines_left_by(style.second, sources, step);
        if (left > best) {
            best = left;
            winner = &style;
        }
    }
    if (winner == nullptr || stop_requested())
        return closest;
    unsigned long lines = 0;
    for (std::string const& source : sources)
        lines += style_tarnel::lines_of(source);
    unsigned long const left = step == 1 ? best : lines_left_by(winner->second, sources, 1);
    // Shares, in whole numbers: left / lines against learned_lines_left / learned_lines.
    if (stop_requested() || (step > 1 && left * static_cast<unsigned long long>(learned_lines) <=
                                             learned_lines_left * static_cast<unsigned long long>(lines)))
        return closest;
    closest.style = winner->first;
    closest.addon = winner->second;
    closest.lines = lines;
    closest.lines_left = left;
    return closest;
}
