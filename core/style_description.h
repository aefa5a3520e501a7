// The style and language named inside a style addon. Both empty: the file is no valid addon.
#ifndef STYLE_TARNEL_CORE_STYLE_DESCRIPTION_H
#define STYLE_TARNEL_CORE_STYLE_DESCRIPTION_H

#include <string>

struct style_description {
    std::string style;
    std::string language;

    bool is_empty() const { return style.empty() || language.empty(); }
    bool operator==(style_description const& other) const {
        return style == other.style && language == other.language;
    }
};

#endif
