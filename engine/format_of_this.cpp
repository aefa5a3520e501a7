#include "engine/format_of_this.h"

#include "match_in_full.h"
#include "style_addon_forms.h"

format_check format_of_this::based_on(interface_to_language_plugin* plugin,
                                      std::string& bad_structure) const {
    std::map<std::string, std::string> forms;
    try {
        forms = plugin->forms_of_structures();
    } catch (...) {
        return format_check::plugin_failed;
    }
    for (auto const& [structure, expression] : forms) {
        std::string const form = style_tarnel::form_of_structure(structure, addon_text);
        if (form.empty())
            continue;  // A missing section is no error.
        if (!style_tarnel::match_in_full(expression).of(form)) {
            bad_structure = structure;
            return format_check::invalid_form;
        }
    }
    return format_check::valid;
}
