// Each option value of the table is tried on the inferred options, first on the form alone, then,
// for the values that bring it back, on all forms.
#include "form_conflicts.h"

#include "addon_forms.h"
#include "inference_cache.h"
#include "option_inference.h"
#include "option_moves.h"
#include "revision.h"

#include <map>

namespace tarnel_engine {

namespace {

struct need {
    std::string candidate;
    std::vector<std::string> conflicting;
};

need need_of(form_case const& failing, std::vector<form_case> const& forms, std::vector<unsigned long> const& now,
             clang::format::FormatStyle const& style, std::vector<option_group> const& groups) {
    need best;
    bool found = false;
    for (option_group const& group : groups)
        for (std::string const& candidate : group.candidates) {
            clang::format::FormatStyle trial = style;
            if (!apply_candidate(trial, candidate) || same_options(trial, style) || distances_of({failing}, trial).front() != 0)
                continue;
            std::vector<unsigned long> const after = distances_of(forms, trial);
            std::vector<std::string> conflicting;
            for (std::size_t i = 0; i < forms.size(); ++i)
                if (now[i] == 0 && after[i] != 0)
                    conflicting.push_back(forms[i].structure);
            if (!found || conflicting.size() < best.conflicting.size()) {
                best = {candidate, conflicting};
                found = true;
            }
        }
    return best;
}

}  // namespace

std::vector<form_not_coming_back> forms_not_coming_back(std::string const& addon, language_description const& language) {
    std::map<std::string, std::string> const formatted = forms_formatted_by_inferred_options(addon, language);
    clang::format::FormatStyle const style = inference_cache::shared().style_for(addon, language);
    std::vector<form_case> const forms = form_cases_in(addon, language);
    std::vector<unsigned long> const now = distances_of(forms, style);
    std::vector<form_not_coming_back> failing;
    for (structure const& each : language.structures) {
        auto const result = formatted.find(each.name);
        std::string const form = form_of_structure(each.name).in(addon);
        if (result == formatted.end() || result->second == form)
            continue;
        form_not_coming_back entry{each.name, form, result->second, std::string(), {}};
        for (form_case const& candidate : forms)
            if (candidate.structure == each.name) {
                need const found = need_of(candidate, forms, now, style, option_groups(language.lexing));
                entry.needs = found.candidate;
                entry.conflicting = found.conflicting;
            }
        failing.push_back(entry);
    }
    return failing;
}

}  // namespace tarnel_engine
