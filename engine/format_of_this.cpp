#include "engine/format_of_this.h"

#include "match_in_full.h"
#include "style_addon_forms.h"

#include <utility>
#include <vector>

format_check format_of_this::based_on(interface_to_language_plugin* plugin,
                                      std::string& bad_structure) const {
    std::map<std::string, std::string> forms;
    try {
        forms = plugin->forms_of_structures();
    } catch (...) {
        return format_check::plugin_failed;
    }
    std::vector<std::string> structures;
    std::vector<std::pair<std::string, std::string>> checks;
    for (auto const& [structure, expression] : forms) {
        std::string form = style_tarnel::form_of_structure(structure, addon_text);
        if (form.empty())
            continue;  // A missing section is no error.
        structures.push_back(structure);
        checks.emplace_back(expression, std::move(form));
    }
    if (std::size_t const bad = style_tarnel::match_in_full::first_mismatch_among(checks); bad < checks.size()) {
        bad_structure = structures[bad];
        return format_check::invalid_form;
    }
    return format_check::valid;
}
