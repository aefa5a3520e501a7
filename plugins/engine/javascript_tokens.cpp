// A small lexer of JavaScript and TypeScript: every byte of the text is white space or part of a
// token, so two texts with the same tokens differ in white space alone. A template literal is read
// in pieces, each with every byte of its text: from the backtick to the first `${`, from each `}`
// that closes a substitution to the next `${`, and to the closing backtick; the code of a
// substitution between them is read as any other code. Where it cannot tell a
// regular expression from a division it reads a regular expression: the white space inside one is
// then kept as written, never changed as if it stood between tokens.
// JSX: an element begins with a `<` where an expression may begin, followed by a name whose closing
// tag follows or whose tag closes itself (`<T,>` and `<T extends U>` stay TypeScript's type
// parameters). The text between its tags is one token with all its white space, which a page shows
// (blanks, and line breaks, which decide which blanks it drops): no revision changes it. A name in
// a tag is read whole with its `-`, `:` and `.`, a quoted value with no escapes.
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
            if (in(jsx_children) && at < code.size() && code[at] != '<' && code[at] != '{') {
                std::size_t const end = jsx_text_end(at);
                tokens.push_back({std::string(code.substr(at, end - at)), end, false, at, line_break});
                last = code.substr(at, end - at);
                at = end;
                continue;
            }
            std::size_t const start = skip_white_space(at, line_break);
            if (start == code.size())
                return tokens;
            bool const in_a_tag = in(jsx_tag);
            std::size_t const end = token_end(start);
            javascript_token token{std::string(code.substr(start, end - start)), end, is_comment_at(start), start,
                                   line_break, in_a_tag};
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
    enum context_kind { substitution, jsx_expression, jsx_tag, jsx_children };
    struct context {
        context_kind kind;
        int braces = 0;  // in code: the braces open in it
        bool closing = false;  // a tag: a closing one (`</a>`)
        bool closes_itself = false;  // a tag: its `/` read (`<a />`)
    };

    bool in(context_kind kind) const { return !contexts.empty() && contexts.back().kind == kind; }

    std::size_t jsx_text_end(std::size_t at) const {
        while (at < code.size() && code[at] != '<' && code[at] != '{')
            ++at;
        return at;
    }

    static bool is_jsx_name_character(char c) { return is_word_character(c) || c == '-' || c == ':' || c == '.'; }

    std::size_t jsx_name_end(std::size_t at) const {
        while (at < code.size() && is_jsx_name_character(code[at]))
            ++at;
        return at;
    }

    std::size_t after_blanks(std::size_t at) const {
        while (at < code.size() && is_blank(code[at]))
            ++at;
        return at;
    }

    // The `>` that ends a tag whose attributes begin at `at`, past quoted values and braced code;
    // npos where no tag can end (a `;`, a parenthesis or a `<` first).
    std::size_t end_of_tag(std::size_t at) const {
        int braces = 0;
        for (; at < code.size(); ++at) {
            char const c = code[at];
            if (c == '"' || c == '\'') {
                at = code.find(c, at + 1);
                if (at == std::string_view::npos)
                    return at;
            } else if (c == '{') {
                ++braces;
            } else if (c == '}') {
                --braces;
            } else if (braces == 0 && c == '>') {
                return at;
            } else if (braces == 0 && (c == ';' || c == '(' || c == ')' || c == '<')) {
                return std::string_view::npos;
            }
        }
        return std::string_view::npos;
    }

    // Whether a closing tag of that name (none: a fragment's) follows `from`, blanks allowed
    // between its tokens.
    bool closing_tag_follows(std::size_t from, std::string_view name) const {
        for (std::size_t open = code.find('<', from); open != std::string_view::npos; open = code.find('<', open + 1)) {
            std::size_t const slash = after_blanks(open + 1);
            if (slash == code.size() || code[slash] != '/')
                continue;
            std::size_t const named = after_blanks(slash + 1);
            if (name.empty() ? named < code.size() && code[named] == '>'
                             : code.substr(named, name.size()) == name &&
                                   (named + name.size() == code.size() || !is_jsx_name_character(code[named + name.size()])))
                return true;
        }
        return false;
    }

    // Whether the `<` at `at`, where an expression may begin, opens a JSX element or fragment.
    // Blanks between the tokens of a tag change nothing of it: the same code with other white
    // space is read alike.
    bool begins_an_element(std::size_t at) const {
        std::size_t const name = after_blanks(at + 1);
        if (name < code.size() && code[name] == '>')
            return closing_tag_follows(name, {});
        if (name >= code.size() || !is_word_character(code[name]) || is_digit(code[name]) || code[name] == '\\')
            return false;
        std::size_t const name_end = jsx_name_end(name);
        std::size_t const next = after_blanks(name_end);
        // TypeScript's type parameters: `<T,>(x: T) => x`, `<T extends U>(x: T) => x`.
        if (next < code.size() && code[next] == ',')
            return false;
        if (code.substr(next, 7) == "extends" && (next + 7 == code.size() || !is_word_character(code[next + 7])))
            return false;
        std::size_t const end = end_of_tag(name_end);
        if (end == std::string_view::npos)
            return false;
        std::size_t before_end = end;
        while (before_end > name_end && is_blank(code[before_end - 1]))
            --before_end;
        if (before_end > name_end && code[before_end - 1] == '/')
            return true;
        return closing_tag_follows(end, code.substr(name, name_end - name));
    }

    // A token of a tag: a name, a quoted value, `{` opening code, `/`, the `>` that ends the tag,
    // any other character alone.
    std::size_t jsx_tag_token_end(std::size_t at) {
        char const c = code[at];
        if (c == '"' || c == '\'') {
            std::size_t const close = code.find(c, at + 1);
            return close == std::string_view::npos ? code.size() : close + 1;
        }
        if (c == '{') {
            contexts.push_back({jsx_expression});
            return at + 1;
        }
        if (c == '/') {
            contexts.back().closes_itself = !contexts.back().closing;
            return at + 1;
        }
        if (c == '>') {
            context const tag = contexts.back();
            contexts.pop_back();
            if (tag.closing && in(jsx_children))
                contexts.pop_back();
            else if (!tag.closing && !tag.closes_itself)
                contexts.push_back({jsx_children});
            return at + 1;
        }
        if (is_jsx_name_character(c))
            return jsx_name_end(at);
        return at + 1;
    }

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
        if (in(jsx_children)) {  // a tag or code in braces
            if (c == '{')
                contexts.push_back({jsx_expression});
            else
                contexts.push_back({jsx_tag, 0, after_blanks(at + 1) < code.size() && code[after_blanks(at + 1)] == '/'});
            return at + 1;
        }
        if (in(jsx_tag) && !is_comment_at(at))
            return jsx_tag_token_end(at);
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
        if (!contexts.empty() && c == '{')
            ++contexts.back().braces;
        if (!contexts.empty() && c == '}' && contexts.back().braces-- == 0) {
            context_kind const closed = contexts.back().kind;
            contexts.pop_back();
            return closed == substitution ? template_piece_end(at + 1) : at + 1;
        }
        if (c == '<' && regular_expression_may_follow() && begins_an_element(at)) {
            contexts.push_back({jsx_tag});
            return at + 1;
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
                contexts.push_back({substitution});
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
    // Open substitutions of template literals, JSX elements, their tags and the code in their braces.
    std::vector<context> contexts;
};

}  // namespace

std::vector<javascript_token> javascript_tokens_of(std::string const& code) { return javascript_lexer(code).all(); }

}  // namespace tarnel_engine
