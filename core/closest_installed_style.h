// The installed style of a language whose revision leaves the most lines of a project's sources as
// they are, where it leaves more than a learned style does: learning never installs a style
// further from the project's code than one the user could have picked from the list.
#ifndef STYLE_TARNEL_CORE_CLOSEST_INSTALLED_STYLE_H
#define STYLE_TARNEL_CORE_CLOSEST_INSTALLED_STYLE_H

#include "interface_to_language_plugin.h"

#include <functional>
#include <string>
#include <vector>

struct closer_installed_style {
    // Empty when no installed style leaves more lines than the learned one.
    std::string style;
    std::string addon;
    // Over all the sources.
    unsigned long lines = 0;
    unsigned long lines_left = 0;
};

class find_closest_installed_style {
public:
    find_closest_installed_style(interface_to_language_plugin& plugin, std::string language,
                                 std::function<bool()> stop_requested)
        : plugin(plugin), language(std::move(language)), stop_requested(std::move(stop_requested)) {}

    // Every style is measured on every k-th source (at most about a hundred of them), the learned
    // addon too; with a hundred sources or fewer, that is all of them, and the best wins. Beyond,
    // the best, if it wins there, is counted on all the sources and wins when it leaves a larger
    // share of their lines than the learning's own count (`learned_lines_left` of the
    // `learned_lines` it counted).
    closer_installed_style than(std::string const& learned_addon, unsigned long learned_lines,
                                unsigned long learned_lines_left, std::vector<std::string> const& sources) const;

private:
    unsigned long lines_left_by(std::string const& addon, std::vector<std::string> const& sources,
                                std::size_t step) const;

    interface_to_language_plugin& plugin;
    std::string language;
    std::function<bool()> stop_requested;
};

#endif
