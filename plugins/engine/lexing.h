// The language options of the lexer that every check of the engine library reads code with
// (internal to the engine library).
#ifndef TARNEL_ENGINE_LEXING_H
#define TARNEL_ENGINE_LEXING_H

#include "token_sequence.h"

#include <clang/Basic/LangOptions.h>

namespace tarnel_engine {

// The latest standard of the language, digraphs and raw strings on.
clang::LangOptions lexer_options_for(lexed_as language);

}  // namespace tarnel_engine

#endif
