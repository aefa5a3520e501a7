#include "core/there_is_no_such.h"

#include "core/installed_files.h"
#include "core/kernel.h"

#include <algorithm>

bool there_is_no_such::language(std::string const& language) const {
    return !plugin_of(language);
}

bool there_is_no_such::style(std::string const& style, std::string const& language) const {
    // An absent list (a broken addons directory) is taken as empty: no such style either.
    auto const styles = kernel().supported_formatting_styles_for(language);
    if (!styles)
        return true;
    return std::none_of(styles->begin(), styles->end(), [&](style_description const& d) {
        return d.style == style && d.language == language;
    });
}
