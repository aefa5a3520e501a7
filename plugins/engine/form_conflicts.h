// Why a form of an addon does not come back from the options inferred from it: the option value
// it would need, and the forms that value would no longer bring back (the forms it conflicts with,
// those that share the rule).
#ifndef TARNEL_ENGINE_FORM_CONFLICTS_H
#define TARNEL_ENGINE_FORM_CONFLICTS_H

#include "language.h"

#include <string>
#include <vector>

namespace tarnel_engine {

struct form_not_coming_back {
    std::string structure;
    // The form as the addon holds it, and as it comes back from the inferred options.
    std::string form;
    std::string comes_back;
    // One candidate of the option table, in clang-format's configuration syntax, under which the
    // form comes back: the one that loses the fewest other forms. Empty when no single value does.
    std::string needs;
    // The structures whose forms come back now and would not under `needs`.
    std::vector<std::string> conflicting;
};

// Every form of the addon that does not come back, in the order of the language's structures.
std::vector<form_not_coming_back> forms_not_coming_back(std::string const& addon, language_description const& language);

}  // namespace tarnel_engine

#endif
