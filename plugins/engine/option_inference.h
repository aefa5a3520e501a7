// Finds the engine's options under which every form of an addon is a fixed point (internal to
// the engine library).
#ifndef TARNEL_ENGINE_OPTION_INFERENCE_H
#define TARNEL_ENGINE_OPTION_INFERENCE_H

#include <clang/Format/Format.h>

#include <string>
#include <vector>

namespace tarnel_engine {

struct form_case {
    // The form as code, placeholders replaced by their instances.
    std::string code;
    // The option groups its structure decides.
    std::vector<std::string> decides;
};

// Starts from the predefined style closest to the forms, sets what the forms show directly
// (indent unit and tabs), then moves one option group at a time over the candidate table while
// the total white-space distance between the forms and their formatted results shrinks. A group
// is only tried for structures whose forms still differ, and judged first on the forms that name
// it. Deterministic: the same forms give the same options.
class infer_options {
public:
    clang::format::FormatStyle from(std::vector<form_case> const& forms) const;
};

// How far each form is from its formatted result under a style; all forms are formatted in one
// engine call.
std::vector<unsigned long> distances_of(std::vector<form_case> const& forms, clang::format::FormatStyle const& style);

}  // namespace tarnel_engine

#endif
