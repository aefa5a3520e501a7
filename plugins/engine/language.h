// What a language plugin tells the engine about its language.
#ifndef TARNEL_ENGINE_LANGUAGE_H
#define TARNEL_ENGINE_LANGUAGE_H

#include "structure_catalogue.h"

#include <string>
#include <vector>

namespace tarnel_engine {

struct language_description {
    std::string name;
    std::vector<std::string> keywords;
    std::vector<std::string> filename_extensions;
    structure_catalogue structures;
};

}  // namespace tarnel_engine

#endif
