// One form of an addon as the inference takes it (internal to the engine library).
#ifndef TARNEL_ENGINE_FORM_CASE_H
#define TARNEL_ENGINE_FORM_CASE_H

#include <string>
#include <vector>

namespace tarnel_engine {

struct form_case {
    // The structure's name in the catalogue.
    std::string structure;
    // The form as code, placeholders replaced by their instances.
    std::string code;
    // The option groups its structure decides.
    std::vector<std::string> decides;
};

}  // namespace tarnel_engine

#endif
