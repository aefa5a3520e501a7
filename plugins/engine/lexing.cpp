// The lexer settings and the comments of a text, as every check of the engine library reads them.
#include "lexing.h"

#include "javascript_tokens.h"

#include <clang/Lex/Lexer.h>

namespace tarnel_engine {

clang::LangOptions lexer_options_for(lexed_as language) {
    clang::LangOptions options;
    switch (language) {
    case lexed_as::objective_c:
        options.ObjC = true;
        [[fallthrough]];
    case lexed_as::latest_cpp:
        options.CPlusPlus = options.CPlusPlus11 = options.CPlusPlus14 = options.CPlusPlus17 = true;
        options.CPlusPlus20 = options.CPlusPlus23 = options.CPlusPlus26 = true;
        options.Char8 = true;
        options.CXXOperatorNames = true;
        options.Digraphs = true;
        options.RawStringLiterals = true;
        break;
    case lexed_as::latest_c:
        options.C99 = options.C11 = options.C17 = options.C23 = true;
        options.Digraphs = true;
        options.RawStringLiterals = true;
        break;
    case lexed_as::java:
    case lexed_as::protocol_buffers:
        // `::` and `->` are tokens of Java too; digraphs, raw strings and digit separators are
        // not: `<:` and `%>` are two tokens there, `R"x"` a name and a string.
    case lexed_as::csharp:
        // C#'s strings, verbatim names and operators that clang reads otherwise are read whole
        // after it (token_sequence.cpp); `'` is no digit separator there.
    case lexed_as::javascript:
        // Read by a lexer of its own (javascript_tokens.h); clang's serves only what has no
        // JavaScript of its own to read.
        options.CPlusPlus = options.CPlusPlus11 = true;
        options.Digraphs = false;
        options.RawStringLiterals = false;
        break;
    }
    options.LineComment = true;
    options.Bool = true;
    return options;
}

std::vector<comment_place> comments_in(std::string const& code, lexed_as language) {
    if (language == lexed_as::javascript) {
        std::vector<comment_place> comments;
        for (javascript_token const& each : javascript_tokens_of(code)) {
            if (each.is_comment)
                comments.push_back({each.begin, each.end - each.begin});
        }
        return comments;
    }
    clang::LangOptions const options = lexer_options_for(language);
    char const* const begin = code.data();
    clang::Lexer lexer(clang::SourceLocation(), options, begin, begin, begin + code.size());
    lexer.SetCommentRetentionState(true);
    std::vector<comment_place> comments;
    clang::Token token;
    for (lexer.LexFromRawLexer(token); token.isNot(clang::tok::eof); lexer.LexFromRawLexer(token)) {
        if (token.is(clang::tok::comment)) {
            std::size_t const end = static_cast<std::size_t>(lexer.getBufferLocation() - begin);
            comments.push_back({end - token.getLength(), token.getLength()});
        }
    }
    return comments;
}

}  // namespace tarnel_engine
