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
    if (token.size() >= 2 && token.substr(token.size() - 2) == "${")  // a template literal's piece before code
        return true;
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
    if (token.size() > 1 && token.front() == '}')  // a template literal's piece after code
        return true;
    return is_one_of(token, {")", "]", "}", ",", ";", ".", "?.", "?", ":", "=", "+=", "-=", "*=", "/=", "%=", "**=",
                             "<<=", ">>=", ">>>=", "&=", "|=", "^=", "&&=", "||=", "?\?=", "%", "**", "&",
                             "|", "^", "&&", "||", "??", "==", "!=", "===", "!==", "<=", ">=", ">", ">>", ">>>",
                             "<<"});
}

// Tokens that a line break after them parts from what follows, whatever it is: JavaScript's
// restricted productions, and TypeScript's modifiers and declarations, which read as names when a
// line ends after them.
bool ends_at_a_line_break(std::string_view token) {
    return is_one_of(token, {"return", "throw", "break", "continue", "yield", "async", "let", "get", "set", "static",
                             "abstract", "declare", "type", "namespace", "module", "global", "interface", "enum",
                             "public", "private", "protected", "readonly", "override", "accessor"});
}

// Tokens that a line break before them parts from what precedes them: `++` and `--` become prefix
// operators, `=>` may not stand there.
bool begins_at_a_line_break(std::string_view token) { return is_one_of(token, {"++", "--", "=>"}); }

// Tokens that continue the expression of the line above when a line begins with them, where a
// reader does not see it (`(`, `[`, a template literal), or that TypeScript reads otherwise after a
// line break (its `!` after an expression, the `<` of type arguments): such a line break stays as
// the source has it, unless the token before cannot end an expression.
bool continues_the_line_above(std::string_view token) {
    return is_one_of(token, {"!", "<", "(", "["}) || token.front() == '`';
}

// Pairs a style joins or parts where the line break never ends a statement: a brace of a block
// or a body, `else`, `catch` and `finally` after a block, the `while` of a do-while loop, and the
// statement of a short `if`, loop, `else` or `do`.
// `first_closes_a_condition`: `first` is the `)` of the head of an `if`, `for`, `while` or `with`.
bool a_block_or_a_body_between(std::string_view first, std::string_view second, bool first_closes_a_condition) {
    return is_one_of(second, {"{", "else", "catch", "finally"}) || (first == "}" && second == "while") ||
           is_one_of(first, {"else", "do"}) || first_closes_a_condition;
}

// For each token, whether it is the `)` that closes the head of an `if`, `for`, `while` or `with`.
std::vector<bool> closers_of_conditions_in(std::vector<javascript_token> const& tokens) {
    std::vector<bool> closes(tokens.size(), false);
    std::vector<bool> open;  // for each open parenthesis, whether a control statement's head
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (tokens[at].text == "(") {
            open.push_back(at > 0 && is_one_of(tokens[at - 1].text, {"if", "for", "while", "with"}) &&
                           !(at > 1 && is_one_of(tokens[at - 2].text, {".", "?."})));
        } else if (tokens[at].text == ")" && !open.empty()) {
            closes[at] = open.back();
            open.pop_back();
        }
    }
    return closes;
}

// A line break added between two tokens inserts a semicolon only in a restricted production: where
// the two tokens continue each other on one line, the line break does not end the statement, and
// where they do not, the source was no program. A line break taken away joins two statements
// whenever one ended there: only where the first cannot end one or the second cannot begin one,
// or where a style places a block or a body, is it sure that none did. `first_is_a_property`: a
// `.` stands before the first token, which is then a name whatever its spelling.
bool a_line_break_may_move_between(std::string_view first, std::string_view second, bool first_is_a_property,
                                   bool first_closes_a_condition, bool added) {
    if ((ends_at_a_line_break(first) && !first_is_a_property) || begins_at_a_line_break(second))
        return false;
    if (cannot_end_a_statement(first))
        return true;
    if (continues_the_line_above(second))
        return false;
    if (added)
        return true;
    return cannot_begin_a_statement(second) || a_block_or_a_body_between(first, second, first_closes_a_condition);
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
    std::vector<bool> const closes_a_condition = closers_of_conditions_in(old_tokens);
    // Both read as JSX in the same places, or the white space of one might be JSX text unread.
    for (std::size_t at = 0; at < old_tokens.size(); ++at)
        if (old_tokens[at].in_a_jsx_tag != new_tokens[at].in_a_jsx_tag)
            return false;
    for (std::size_t at = 1; at < old_tokens.size(); ++at) {
        // Inside the `<...>` of a JSX tag no statement ends.
        if (old_tokens[at].line_break_before != new_tokens[at].line_break_before && !old_tokens[at].in_a_jsx_tag &&
            !a_line_break_may_move_between(old_tokens[at - 1].text, old_tokens[at].text,
                                           at >= 2 && is_one_of(old_tokens[at - 2].text, {".", "?."}),
                                           closes_a_condition[at - 1], new_tokens[at].line_break_before))
            return false;
    }
    return true;
}

}  // namespace tarnel_engine
