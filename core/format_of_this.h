// Checks every structure form present in an addon against the expression its plugin gives for
// that structure (ECMAScript syntax, matched in full). A missing form is no error.
#ifndef STYLE_TARNEL_CORE_FORMAT_OF_THIS_H
#define STYLE_TARNEL_CORE_FORMAT_OF_THIS_H

#include "interface_to_language_plugin.h"

#include <string>

class format_of_this {
public:
    explicit format_of_this(std::string addon_text) : addon_text(std::move(addon_text)) {}
    // True when a form is invalid (or its expression unusable); `bad_structure` then names it.
    bool is_invalid_based_on(interface_to_language_plugin* plugin, std::string& bad_structure) const;

private:
    std::string addon_text;
};

#endif
