#include "core/format_of_this.h"

#include "core/style_addon.h"

#include <boost/xpressive/xpressive.hpp>

bool format_of_this::is_invalid_based_on(interface_to_language_plugin* plugin,
                                         std::string& bad_structure) const {
    namespace xp = boost::xpressive;
    for (auto const& [structure, expression] : plugin->forms_of_structures()) {
        std::string const form = obtain_structure_form(structure).from_already_reading(addon_text);
        if (form.empty())
            continue;
        bool matches = false;
        try {
            matches = xp::regex_match(form, xp::sregex::compile(expression));
        } catch (xp::regex_error const&) {
            matches = false;  // An expression that does not compile accepts no form.
        }
        if (!matches) {
            bad_structure = structure;
            return true;
        }
    }
    return false;
}
