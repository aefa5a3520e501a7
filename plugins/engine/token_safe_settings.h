// The engine's settings that would edit tokens, switched off, the predefined styles that the
// inference starts from, and the choice of a value by language (internal to the engine library).
#ifndef TARNEL_ENGINE_TOKEN_SAFE_SETTINGS_H
#define TARNEL_ENGINE_TOKEN_SAFE_SETTINGS_H

#include "token_sequence.h"

#include <clang/Format/Format.h>

#include <string>
#include <vector>

namespace tarnel_engine {

// Switches off include sorting and regrouping, brace insertion and removal, namespace end
// comments, comment reflow, qualifier reordering, semicolon and parenthesis removal, literal
// separators, trailing commas, quote rewriting, string splitting and using-declaration sorting,
// keeps the end of the file as it is, and reads code in the latest language standard: whatever the
// style says, only white space may change. In Java, lays out as operators the `*` and `&` that the
// engine takes for a pointer or a reference.
void make_token_safe(clang::format::FormatStyle& style);

// The names of the options make_token_safe sets, as the engine's configuration text names them.
std::vector<std::string> const& names_of_token_safe_settings();

// Of values given for each kind of language, the one for the language: the C family's for C and C++.
template <typename value_type>
value_type const& of_language(lexed_as language, value_type const& c_family, value_type const& java,
                              value_type const& protocol_buffers, value_type const& objective_c,
                              value_type const& csharp, value_type const& javascript) {
    switch (language) {
    case lexed_as::java:
        return java;
    case lexed_as::protocol_buffers:
        return protocol_buffers;
    case lexed_as::objective_c:
        return objective_c;
    case lexed_as::csharp:
        return csharp;
    case lexed_as::javascript:
        return javascript;
    case lexed_as::latest_c:
    case lexed_as::latest_cpp:
        break;
    }
    return c_family;
}

// The kind of source the engine formats a language as: C and C++ alike as C++.
clang::format::FormatStyle::LanguageKind engine_kind_of(lexed_as language);

// The engine's predefined styles that have a meaning for the language, in the order the inference
// prefers them on a tie.
std::vector<std::string> const& names_of_predefined_styles(lexed_as language);

// A predefined style of the engine for code of the language, made token-safe.
clang::format::FormatStyle token_safe_predefined_style(std::string const& name, lexed_as language);

}  // namespace tarnel_engine

#endif
