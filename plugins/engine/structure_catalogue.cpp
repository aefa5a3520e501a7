// Token sequences and the expressions generated from them.
#include "structure_catalogue.h"

#include <array>
#include <cctype>

namespace tarnel_engine {

namespace {

bool is_word_character(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }
bool is_blank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

// Operators of more than one character, longest first, so that "->" is one token and not two.
std::array<char const*, 28> const operators = {
    "<<=", ">>=", "...", "->*", "->", "::", "<<", "<=", ">=", "==", "!=", "&&", "||", "++", "--",
    "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", ".*", "//", "/*", "*/", "##"};

// The length of the literal ("..." or '...') that starts at `at`, escapes included.
std::size_t length_of_literal(std::string const& code, std::size_t at) {
    char const quote = code[at];
    std::size_t end = at + 1;
    while (end < code.size() && code[end] != quote)
        end += code[end] == '\\' ? 2 : 1;
    return std::min(end + 1, code.size()) - at;
}

std::size_t length_of_operator(std::string const& code, std::size_t at) {
    for (char const* candidate : operators) {
        std::string const text = candidate;
        if (code.compare(at, text.size(), text) == 0)
            return text.size();
    }
    return 1;
}

std::string escaped(std::string const& token) {
    static std::string const special = "^$\\.*+?()[]{}|/";
    std::string result;
    for (char c : token) {
        if (special.find(c) != std::string::npos)
            result += '\\';
        result += c;
    }
    return result;
}

}  // namespace

std::vector<std::string> tokens_of(std::string const& code) {
    std::vector<std::string> tokens;
    std::size_t at = 0;
    while (at < code.size()) {
        char const c = code[at];
        std::size_t length = 1;
        if (is_blank(c)) {
            ++at;
            continue;
        }
        if (is_word_character(c)) {
            while (at + length < code.size() && is_word_character(code[at + length]))
                ++length;
        } else if (c == '"' || c == '\'') {
            length = length_of_literal(code, at);
        } else {
            length = length_of_operator(code, at);
        }
        tokens.push_back(code.substr(at, length));
        at += length;
    }
    return tokens;
}

std::string expression_for(std::vector<std::string> const& tokens) {
    // A backslash that continues a line is white space to the engine: where tokens contain one
    // (a macro over several lines), any gap may hold one.
    std::vector<std::string> kept;
    for (std::string const& token : tokens)
        if (token != "\\")
            kept.push_back(token);
    bool const continued_lines = kept.size() != tokens.size();
    std::string const any_gap = continued_lines ? "[\\s\\\\]*" : "\\s*";
    std::string const word_gap = continued_lines ? "[\\s\\\\]+" : "\\s+";
    std::string expression = any_gap;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (i > 0) {
            bool const two_words = is_word_character(kept[i - 1].back()) && is_word_character(kept[i].front());
            expression += two_words ? word_gap : any_gap;
        }
        expression += escaped(kept[i]);
    }
    return expression + any_gap;
}

std::map<std::string, std::string> expressions_of(structure_catalogue const& catalogue) {
    std::map<std::string, std::string> expressions;
    for (structure const& each : catalogue)
        expressions[each.name] = each.expression.empty() ? expression_for(tokens_of(each.tokens)) : each.expression;
    return expressions;
}

}  // namespace tarnel_engine
