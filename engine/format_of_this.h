// Checks every structure form present in an addon against the expression its plugin gives for
// that structure (ECMAScript syntax, matched in full). A missing form is no error.
#ifndef STYLE_TARNEL_ENGINE_FORMAT_OF_THIS_H
#define STYLE_TARNEL_ENGINE_FORMAT_OF_THIS_H

#include "interface_to_language_plugin.h"

#include <string>

enum class format_check {
    valid,
    // A form does not match its structure's expression (or the expression does not compile).
    invalid_form,
    // The plugin threw when asked for its expressions: it accepts no addon.
    plugin_failed,
};

class format_of_this {
public:
    explicit format_of_this(std::string addon_text) : addon_text(std::move(addon_text)) {}
    // `bad_structure` names the invalid form's structure.
    format_check based_on(interface_to_language_plugin* plugin, std::string& bad_structure) const;
    // True when the addon is not valid for the plugin, whichever the reason.
    bool is_invalid_based_on(interface_to_language_plugin* plugin, std::string& bad_structure) const {
        return based_on(plugin, bad_structure) != format_check::valid;
    }

private:
    std::string addon_text;
};

#endif
