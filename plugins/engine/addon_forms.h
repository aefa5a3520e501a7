// Reads structure forms out of a style addon's text with the host's own reader (sdk/), so that the
// plugin formats with exactly the forms the host validated (internal to the engine library).
#ifndef TARNEL_ENGINE_ADDON_FORMS_H
#define TARNEL_ENGINE_ADDON_FORMS_H

#include "style_addon_forms.h"

#include <string>

namespace tarnel_engine {

using style_tarnel::line_ending_of;

// The form of one structure in an addon, or empty when the addon has no section for it.
class form_of_structure {
public:
    explicit form_of_structure(std::string name) : name(std::move(name)) {}
    std::string in(std::string const& addon) const { return style_tarnel::form_of_structure(name, addon); }

private:
    std::string name;
};

}  // namespace tarnel_engine

#endif
