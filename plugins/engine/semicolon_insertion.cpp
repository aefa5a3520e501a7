// The pairs of tokens a line break may be added between or taken from in JavaScript and
// TypeScript without a semicolon inserted or taken away. Anything not named here is refused: a
// revision that moves a line break elsewhere is given up, never the meaning of the program.
#include "semicolon_insertion.h"

#include "javascript_tokens.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tarnel_engine {

namespace {

bool is_one_of(std::string_view token, std::initializer_list<std::string_view> tokens) {
    return std::find(tokens.begin(), tokens.end(), token) != tokens.end();
}

// Tokens after which a statement cannot end. Not `)`, `]`, `}`, names, literals, `++`, `--`, nor
// what TypeScript may end a type or a member with (`>`, `>>`, `>>>`, `!`, `?`, `*`).
bool cannot_end_a_statement(std::string_view token) {
    return is_one_of(token, {"(", "[", "{", ",", ";", ".", "?.", ":", "=>", "...", "=", "+=", "-=", "*=", "/=", "%=",
                             "**=", "<<=", ">>=", ">>>=", "&=", "|=", "^=", "&&=", "||=", "?\?=", "+", "-", "/",
                             "%", "**", "<<", "&", "|", "^", "&&", "||", "??", "==", "!=", "===", "!==", "<",
                             "<=", ">=", "~"});
}

// Tokens that cannot begin a statement, so that a line break before them never ends the one
// before. Not `(`, `[`, a template literal, `+`, `-`, `/`, `<`, `!`, `~`, `++`, `--`, `{`, `*`
// (a generator method of a class), `@`, names or literals (all of which may begin a statement, an
// expression or a member), nor `=>` (no line break may stand before it).
bool cannot_begin_a_statement(std::string_view token) {
    return is_one_of(token, {")", "]", "}", ",", ";", ".", "?.", "?", ":", "=", "+=", "-=", "*=", "/=", "%=", "**=",
                             "<<=", ">>=", ">>>=", "&=", "|=", "^=", "&&=", "||=", "?\?=", "%", "**", "&",
                             "|", "^", "&&", "||", "??", "==", "!=", "===", "!==", "<=", ">=", ">", ">>", ">>>",
                             "<<"});
}

// Tokens whose statement a line break after them always ends.
bool ends_at_a_line_break(std::string_view token) {
    return is_one_of(token, {"return", "throw", "break", "continue", "yield", "async"});
}

bool a_line_break_may_move_between(std::string_view first, std::string_view second) {
    if (ends_at_a_line_break(first) || is_one_of(second, {"++", "--", "=>"}))
        return false;
    return cannot_end_a_statement(first) || cannot_begin_a_statement(second);
}

std::vector<javascript_token> code_tokens_of(std::string const& code) {
    std::vector<javascript_token> tokens = javascript_tokens_of(code);
    tokens.erase(std::remove_if(tokens.begin(), tokens.end(), [](javascript_token const& each) { return each.is_comment; }),
                 tokens.end());
    return tokens;
}

}  // namespace

bool line_breaks_keep_the_meaning_of(std::string const& before, std::string const& after) {
    std::vector<javascript_token> const old_tokens = code_tokens_of(before);
    std::vector<javascript_token> const new_tokens = code_tokens_of(after);
    if (old_tokens.size() != new_tokens.size())
        return false;
    for (std::size_t at = 1; at < old_tokens.size(); ++at) {
        if (old_tokens[at].line_break_before != new_tokens[at].line_break_before &&
            !a_line_break_may_move_between(old_tokens[at - 1].text, old_tokens[at].text))
            return false;
    }
    return true;
}

}  // namespace tarnel_engine
