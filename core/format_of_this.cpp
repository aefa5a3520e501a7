#include "core/format_of_this.h"

#include "core/match_in_full.h"
#include "core/style_addon.h"

bool format_of_this::is_invalid_based_on(interface_to_language_plugin* plugin,
                                         std::string& bad_structure) const {
    std::map<std::string, std::string> forms;
    try {
        forms = plugin->forms_of_structures();
    } catch (...) {
        // A plugin that cannot say what its forms look like accepts none.
        bad_structure.clear();
        return true;
    }
    for (auto const& [structure, expression] : forms) {
        std::string const form = obtain_structure_form(structure).from_already_reading(addon_text);
        if (form.empty())
            continue;  // A missing section is no error.
        if (!match_in_full(expression).of(form)) {
            bad_structure = structure;
            return true;
        }
    }
    return false;
}
