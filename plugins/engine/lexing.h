// The language options of the lexer that every check of the engine library reads code with
// (internal to the engine library).
#ifndef TARNEL_ENGINE_LEXING_H
#define TARNEL_ENGINE_LEXING_H

#include "token_sequence.h"

#include <clang/Basic/LangOptions.h>

#include <string>
#include <vector>

namespace tarnel_engine {

// The lexer options for the language (token_sequence.h says what each reads as it does).
clang::LangOptions lexer_options_for(lexed_as language);

// Where a comment stands in a text: its first byte and its length.
struct comment_place {
    std::size_t begin = 0;
    std::size_t length = 0;
};

// The comments of a text, in order, as the lexer of the checks reads it.
std::vector<comment_place> comments_in(std::string const& code, lexed_as language);

}  // namespace tarnel_engine

#endif
