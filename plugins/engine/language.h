// What a language plugin tells the engine about its language.
#ifndef TARNEL_ENGINE_LANGUAGE_H
#define TARNEL_ENGINE_LANGUAGE_H

#include "structure_catalogue.h"
#include "token_sequence.h"

#include <string>
#include <vector>

namespace tarnel_engine {

struct language_description {
    std::string name;
    std::vector<std::string> keywords;
    std::vector<std::string> filename_extensions;
    structure_catalogue structures;
    // How a compiler of the language reads its tokens: a revision keeps them all.
    lexed_as lexing = lexed_as::latest_cpp;
};

}  // namespace tarnel_engine

#endif
