// The brackets are read with clang's raw lexer, so that those in comments, strings and character
// literals do not count; digraphs are brackets, as the engine reads them.
#include "bracket_balance.h"

#include "lexing.h"

#include <clang/Lex/Lexer.h>

#include <vector>

namespace tarnel_engine {

namespace {

struct open_conditional {
    std::vector<char> at_start;                     // the open brackets where #if stood
    std::vector<char> after_first_branch;           // ... and where its first branch ended
    bool first_branch_done = false;
};

char closer_of(clang::tok::TokenKind kind) {
    switch (kind) {
    case clang::tok::r_paren: return '(';
    case clang::tok::r_square: return '[';
    case clang::tok::r_brace: return '{';
    default: return 0;
    }
}

char opener_of(clang::tok::TokenKind kind) {
    switch (kind) {
    case clang::tok::l_paren: return '(';
    case clang::tok::l_square: return '[';
    case clang::tok::l_brace: return '{';
    default: return 0;
    }
}

}  // namespace

bool walk_brackets_of(std::string const& code, std::function<void(bracket_step const&)> const& visit,
                      lexed_as language) {
    clang::LangOptions const options = lexer_options_for(lexed_as::latest_cpp);
    clang::Lexer lexer(clang::SourceLocation(), options, code.data(), code.data(), code.data() + code.size());
    lexer.SetCommentRetentionState(false);

    std::vector<char> open;
    std::vector<open_conditional> conditionals;
    bool balanced = true;
    clang::Token token;
    bool in_directive = false;
    bool have_token = false;  // a token read ahead after a lone "#" that still needs counting
    std::string spelling;
    auto const tell = [&](clang::Token const& told, char const* end) {
        if (!visit)
            return;
        spelling.assign(end - told.getLength(), end);
        visit(bracket_step{spelling, in_directive, told.isAtStartOfLine(), open.size()});
    };
    char const* token_end = nullptr;
    while (true) {
        if (!have_token) {
            lexer.LexFromRawLexer(token);
            token_end = lexer.getBufferLocation();
            std::size_t const start = static_cast<std::size_t>(token_end - code.data()) - token.getLength();
            char const first = token.is(clang::tok::eof) ? '\0' : code[start];
            // A string or a verbatim name of C# read whole, as the token check reads it: its quotes,
            // backslashes and brackets are none of the code's.
            if (language == lexed_as::csharp && (first == '"' || first == '@' || first == '$')) {
                std::size_t const whole = end_of_csharp_token(code, start, start + token.getLength());
                if (whole != start + token.getLength()) {
                    lexer.seek(static_cast<unsigned>(whole), false);
                    token.setKind(clang::tok::string_literal);
                    token.setLength(static_cast<unsigned>(whole - start));
                    token_end = code.data() + whole;
                }
            }
        }
        have_token = false;
        if (token.is(clang::tok::eof))
            break;
        if (token.isAtStartOfLine())
            in_directive = false;
        if (token.isAtStartOfLine() && token.is(clang::tok::hash)) {
            in_directive = true;
            tell(token, token_end);
            clang::Token name;
            lexer.LexFromRawLexer(name);
            char const* const name_end = lexer.getBufferLocation();
            if (name.is(clang::tok::eof) || name.isAtStartOfLine()) {
                token = name;
                token_end = name_end;
                have_token = true;
                continue;
            }
            tell(name, name_end);
            std::string const directive = name.is(clang::tok::raw_identifier) ? name.getRawIdentifier().str() : std::string();
            if (directive == "if" || directive == "ifdef" || directive == "ifndef") {
                conditionals.push_back({open, {}, false});
            } else if ((directive == "elif" || directive == "else" || directive == "elifdef" || directive == "elifndef") &&
                       !conditionals.empty()) {
                if (!conditionals.back().first_branch_done) {
                    conditionals.back().after_first_branch = open;
                    conditionals.back().first_branch_done = true;
                }
                open = conditionals.back().at_start;
            } else if (directive == "endif" && !conditionals.empty()) {
                if (conditionals.back().first_branch_done)
                    open = conditionals.back().after_first_branch;
                conditionals.pop_back();
            }
            continue;
        }
        if (!in_directive) {
            if (char const opener = opener_of(token.getKind())) {
                open.push_back(opener);
            } else if (char const closed = closer_of(token.getKind())) {
                if (open.empty() || open.back() != closed)
                    balanced = false;
                else
                    open.pop_back();
            }
        }
        tell(token, token_end);
    }
    return balanced && open.empty();
}

namespace {

// Whether the brackets among the tokens of a language read by its own lexing pair up.
bool brackets_among_tokens_pair_up(std::string const& code, lexed_as language) {
    std::vector<char> open;
    for (std::string const& token : tokens_of(code, language)) {
        // A piece of a template literal between two substitutions closes one and opens the next.
        bool const piece = language == lexed_as::javascript && token.size() > 1 && (token.front() == '`' || token.front() == '}');
        char const closed = token == ")" ? '(' : token == "]" ? '[' : token == "}" || (piece && token.front() == '}') ? '{' : 0;
        if (closed != 0) {
            if (open.empty() || open.back() != closed)
                return false;
            open.pop_back();
        }
        if (token == "(" || token == "[" || token == "{")
            open.push_back(token.front());
        else if (piece && token.size() >= 2 && token.compare(token.size() - 2, 2, "${") == 0)
            open.push_back('{');
    }
    return open.empty();
}

}  // namespace

bool brackets_are_balanced_in(std::string const& code, lexed_as language) {
    if (language == lexed_as::javascript || language == lexed_as::java)
        return brackets_among_tokens_pair_up(code, language);
    return walk_brackets_of(code, {}, language);
}

}  // namespace tarnel_engine
