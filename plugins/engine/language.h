// What a language plugin tells the engine about its language. A language of the engine's kinds is
// a plugin with such a description and a catalogue; the engine itself knows, per `lexed_as`, how
// the language's compiler reads its tokens (lexing.cpp, token_sequence.cpp), the engine's kind
// and the predefined styles that mean something for it (token_safe_settings.cpp), and the rows of
// the option table that apply (option_moves.cpp).
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
