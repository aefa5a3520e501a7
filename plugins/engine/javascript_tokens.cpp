// A small lexer of JavaScript and TypeScript: every byte of the text is white space or part of a
// token, so two texts with the same tokens differ in white space alone. A template literal is read
// in pieces, each with every byte of its text: from the backtick to the first `${`, from each `}`
// that closes a substitution to the next `${`, and to the closing backtick; the code of a
// substitution between them is read as any other code. Where it cannot tell a
// regular expression from a division it reads a regular expression: the white space inside one is
// then kept as written, never changed as if it stood between tokens.
#include "javascript_tokens.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tarnel_engine {

namespace {

bool is_line_break_at(std::string_view code, std::size_t at) {
    if (code[at] == '\n' || code[at] == '\r')
        return true;
    // U+2028 and U+2029 end lines in JavaScript too.
    return code.substr(at, 2) == "\xe2\x80" && at + 2 < code.size() && (code[at + 2] == '\xa8' || code[at + 2] == '\xa9');
}

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }

bool is_word_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$' ||
           c == '\\' || (static_cast<unsigned char>(c) >= 0x80);
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The operators, longest first.
std::string_view const operators[] = {
    ">>>=", "...", "===", "!==", "**=", "<<=", ">>=", ">>>", "&&=", "||=", "?\?=", "=>", "==", "!=", "<=", ">=",
    "&&",   "||",  "??",  "?.",  "**",  "++",  "--",  "+=",  "-=",  "*=",  "/=",  "%=", "&=", "|=", "^=", "<<", ">>"};

// Words after which a `/` begins a regular expression.
bool regular_expression_may_follow_word(std::string_view word) {
    static std::string_view const words[] = {"return", "typeof", "instanceof", "in",   "of",    "new",  "delete",
                                             "void",   "throw",  "case",       "do",   "else",  "yield", "await"};
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

class javascript_lexer {
public:
    explicit javascript_lexer(std::string_view code) : code(code) {}

    std::vector<javascript_token> all() {
        std::vector<javascript_token> tokens;
        std::size_t at = 0;
        bool line_break = false;
        if (code.substr(0, 2) == "#!")  // a hashbang line reads as a comment
            at = line_comment_end(0);
        if (at > 0)
            tokens.push_back({std::string(code.substr(0, at)), at, true, 0, false});
        while (true) {
            std::size_t const start = skip_white_space(at, line_break);
            if (start == code.size())
                return tokens;
            std::size_t const end = token_end(start);
            javascript_token token{std::string(code.substr(start, end - start)), end, is_comment_at(start), start,
                                   line_break};
            if (token.is_comment) {
                for (std::size_t each = start; each < end; ++each)
                    line_break = line_break || is_line_break_at(code, each);
                token.text.erase(std::remove_if(token.text.begin(), token.text.end(), is_blank), token.text.end());
            } else {
                line_break = false;
                last = code.substr(start, end - start);
            }
            tokens.push_back(std::move(token));
            at = end;
        }
    }

private:
    std::size_t skip_white_space(std::size_t at, bool& line_break) const {
        while (at < code.size()) {
            if (is_line_break_at(code, at))
                line_break = true;
            else if (code.substr(at, 2) == "\xc2\xa0" || code.substr(at, 3) == "\xef\xbb\xbf")
                at += code[at] == '\xc2' ? 1 : 2;
            else if (!is_blank(code[at]))
                return at;
            ++at;
        }
        return at;
    }

    bool is_comment_at(std::size_t at) const { return code.substr(at, 2) == "//" || code.substr(at, 2) == "/*"; }

    std::size_t line_comment_end(std::size_t at) const {
        while (at < code.size() && !is_line_break_at(code, at))
            ++at;
        return at;
    }

    bool regular_expression_may_follow() const {
        if (last.empty())
            return true;
        char const c = last.back();
        if (c == ')' || c == ']' || c == '"' || c == '\'' || c == '`')
            return false;
        if (last == "++" || last == "--")
            return false;
        if (is_word_character(last.front()) || last.front() == '#')
            return regular_expression_may_follow_word(last);
        if (last.size() > 1 && last.front() == '/')  // a regular expression before
            return false;
        return true;  // an operator, an opening bracket, `}`
    }

    std::size_t token_end(std::size_t at) {
        char const c = code[at];
        if (code.substr(at, 2) == "//")
            return line_comment_end(at);
        if (code.substr(at, 2) == "/*") {
            std::size_t const close = code.find("*/", at + 2);
            return close == std::string_view::npos ? code.size() : close + 2;
        }
        if (c == '"' || c == '\'')
            return string_end(at);
        if (c == '`')
            return template_piece_end(at + 1);
        if (!substitutions.empty() && c == '{')
            ++substitutions.back();
        if (!substitutions.empty() && c == '}' && substitutions.back()-- == 0) {
            substitutions.pop_back();
            return template_piece_end(at + 1);
        }
        if (c == '/' && regular_expression_may_follow()) {
            std::size_t const end = regular_expression_end(at + 1);
            if (end != 0)
                return end;
        }
        if (is_digit(c) || (c == '.' && at + 1 < code.size() && is_digit(code[at + 1])))
            return number_end(at);
        if (is_word_character(c) || (c == '#' && at + 1 < code.size() && is_word_character(code[at + 1])))
            return word_end(at + 1);
        for (std::string_view const each : operators) {
            if (code.substr(at, each.size()) == each) {
                // `a?.5:b` is a conditional
                if (each == "?." && at + 2 < code.size() && is_digit(code[at + 2]))
                    break;
                return at + each.size();
            }
        }
        return at + 1;
    }

    std::size_t word_end(std::size_t at) const {
        while (at < code.size() && is_word_character(code[at]))
            at += code[at] == '\\' && at + 1 < code.size() ? 2 : 1;
        return std::min(at, code.size());
    }

    std::size_t number_end(std::size_t at) const {
        bool const hexadecimal = code.substr(at, 2) == "0x" || code.substr(at, 2) == "0X";
        while (at < code.size()) {
            char const c = code[at];
            if (!hexadecimal && (c == 'e' || c == 'E') && at + 1 < code.size() &&
                (code[at + 1] == '+' || code[at + 1] == '-'))
                at += 2;
            else if (is_word_character(c) || c == '.')
                ++at;
            else
                break;
        }
        return std::min(at, code.size());
    }

    // Unclosed, a string ends with its line.
    std::size_t string_end(std::size_t at) const {
        char const quote = code[at];
        for (++at; at < code.size(); ++at) {
            if (code[at] == '\\')
                ++at;
            else if (code[at] == quote)
                return at + 1;
            else if (code[at] == '\n' || code[at] == '\r')
                return at;
        }
        return code.size();
    }

    // The end of a piece of a template literal whose first byte (a backtick, or the `}` that closes
    // a substitution) is just before `at`: after its closing backtick, or after the `${` that opens a
    // substitution (then counted as open). Unclosed, a template literal takes the rest.
    std::size_t template_piece_end(std::size_t at) {
        while (at < code.size()) {
            if (code[at] == '\\') {
                at += 2;
            } else if (code[at] == '`') {
                return at + 1;
            } else if (code.substr(at, 2) == "${") {
                substitutions.push_back(0);
                return at + 2;
            } else {
                ++at;
            }
        }
        return code.size();
    }

    // `at` just past the opening slash; 0 when the line ends first (a division, then).
    std::size_t regular_expression_end(std::size_t at) const {
        bool in_class = false;
        for (; at < code.size(); ++at) {
            if (is_line_break_at(code, at))
                return 0;
            if (code[at] == '\\') {
                ++at;
                if (at < code.size() && is_line_break_at(code, at))
                    return 0;
            } else if (code[at] == '[') {
                in_class = true;
            } else if (code[at] == ']') {
                in_class = false;
            } else if (code[at] == '/' && !in_class) {
                return word_end(at + 1);
            }
        }
        return 0;
    }

    std::string_view const code;
    std::string_view last;  // the code token before
    std::vector<int> substitutions;  // for each open substitution of a template literal, its open braces
};

}  // namespace

std::vector<javascript_token> javascript_tokens_of(std::string const& code) { return javascript_lexer(code).all(); }

}  // namespace tarnel_engine
