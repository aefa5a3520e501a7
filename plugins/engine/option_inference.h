// Finds the engine's options under which every form of an addon is a fixed point, or, when the
// forms contradict each other, the options closest to them (internal to the engine library).
#ifndef TARNEL_ENGINE_OPTION_INFERENCE_H
#define TARNEL_ENGINE_OPTION_INFERENCE_H

#include "form_case.h"
#include "form_readings.h"
#include "token_sequence.h"

#include <clang/Format/Format.h>

#include <functional>
#include <string>
#include <vector>

namespace tarnel_engine {

// A predefined style that reproduces every form is taken as it is. Otherwise every predefined
// style is a start, with what the forms show directly (form_readings.h) applied, with and without
// the brace placement read from them; the best starts (a beam) each descend over the option table:
// one option group at a time, judged first on the forms that name it or still differ, then two
// groups that one structure names together where one alone cannot improve (brace placement with
// short functions, operator breaks with alignment, ...; tab use with any of them where tabs indent,
// and the groups that pack lists with each other), and last, where no such pair improves, a group
// that a differing form names with one that the forms its move puts off name (or, for the groups
// that break long lines, with another of those). The result has the smallest total white-space
// distance found between the forms and their formatted results; where the bound is spent with forms
// still differing, single moves from that result within a tenth of the bound more. Deterministic:
// the same forms give the same options; the work is bounded by a count of forms formatted, never by
// time.
class infer_options {
public:
    // Told the forms formatted so far and the bound; the search stops at once when it says false.
    using going_on_check = std::function<bool(unsigned long done, unsigned long whole)>;
    // How far a form (the code wanted) is from what the engine made of it; 0 for the same code.
    using distance_measure = std::function<unsigned long(std::string const& wanted, std::string const& made)>;

    // For forms of the language (the engine formats them as its kind, from its predefined styles),
    // with the bound that the forms of an addon need.
    explicit infer_options(lexed_as language) : language(language) {}
    // Another bound (forms much longer than an addon's need a lower one), with a way to stop, and
    // another measure than the white-space distance.
    infer_options(lexed_as language, long formatting_budget, going_on_check going_on, distance_measure measure = {})
        : language(language), formatting_budget(formatting_budget), going_on(std::move(going_on)),
          measure(std::move(measure)) {}

    clang::format::FormatStyle from(std::vector<form_case> const& forms) const;
    // With readings taken otherwise than from the forms of an addon.
    clang::format::FormatStyle from(std::vector<form_case> const& forms, form_readings const& readings) const;

private:
    lexed_as language;
    // Twice what single and coupled moves alone needed, and a third more: the moves that mend a form
    // with two groups, and those of the tab width, are tried where the others stall, after the first
    // starts; a tab width read wrong costs a descent two of them (one to the wrong width, one back
    // with the group that the width puts off).
    long formatting_budget = 80000;
    going_on_check going_on;
    distance_measure measure;
};

// How far each form is from its formatted result under a style, by the white-space distance or the
// measure given; the forms are formatted in one engine call, but those that another form could
// reach there (trailing comments left where they stand, a pointer leaning derived from the code),
// which are formatted each on its own as a revision formats them.
std::vector<unsigned long> distances_of(std::vector<form_case> const& forms, clang::format::FormatStyle const& style,
                                        infer_options::distance_measure const& measure = {});

}  // namespace tarnel_engine

#endif
