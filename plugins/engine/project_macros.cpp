// The forms are built and read with the catalogue's own tokenizer, the same for every kind; each
// kind's reading of sources is in a file of its own (loop_macros, statement_macros,
// attribute_macros).
#include "project_macros.h"

#include "attribute_macros.h"
#include "loop_macros.h"
#include "statement_macros.h"
#include "structure_catalogue.h"
#include "text_lines.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace tarnel_engine {

namespace macro_reading {

namespace {
bool is_word_character(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }
}  // namespace

bool is_name(std::string const& token) {
    return !token.empty() && !std::isdigit(static_cast<unsigned char>(token[0])) &&
           std::all_of(token.begin(), token.end(), is_word_character);
}

bool is_keyword(std::string const& word) {
    static std::set<std::string> const keywords = {
        "if", "for", "while", "switch", "catch", "return", "sizeof", "alignof", "_Alignof", "decltype", "typeof",
        "typeof_unqual", "static_assert", "_Static_assert", "_Generic", "__attribute__", "__declspec", "defined",
        "do", "else", "case", "default", "new", "delete", "throw", "noexcept", "requires", "operator", "void",
        "type", "name", "SOME", "static", "extern", "inline", "const", "volatile", "struct", "union", "enum",
        "class", "typedef", "goto", "break", "continue", "auto", "register", "restrict", "template", "typename",
        "virtual", "explicit", "friend", "mutable", "constexpr", "consteval", "constinit", "thread_local",
        "using", "namespace", "public", "private", "protected", "co_return", "co_await", "co_yield", "and", "or",
        "not", "int", "char", "short", "long", "signed", "unsigned", "float", "double", "bool", "_Bool"};
    return keywords.count(word) != 0;
}

std::string name_opening(std::string const& text, std::string const& ending) {
    std::size_t end = 0;
    while (end < text.size() && is_word_character(text[end]))
        ++end;
    std::string const name = text.substr(0, end);
    if (!is_name(name) || is_keyword(name))
        return std::string();
    std::size_t at = text.find_first_not_of(' ', end);
    if (at == std::string::npos || text[at] != '(')
        return std::string();
    int depth = 0;
    for (; at < text.size(); ++at) {
        depth += text[at] == '(' ? 1 : text[at] == ')' ? -1 : 0;
        if (text[at] == '"' || text[at] == '\'' || text[at] == ';' || (text[at] == '/' && at + 1 < text.size() &&
                                                                       (text[at + 1] == '/' || text[at + 1] == '*')))
            return std::string();
        if (depth == 0)
            break;
    }
    if (at == text.size())
        return std::string();
    std::size_t const rest = text.find_first_not_of(' ', at + 1);
    std::string const after = rest == std::string::npos ? std::string() : text.substr(rest);
    return after == ending ? name : std::string();
}

bool names_a_type(std::string const& name, std::vector<std::string> const& sources) {
    for (std::string const& source : sources)
        for (char const* kind : {"class ", "struct ", "union "})
            for (std::size_t at = source.find(kind + name); at != std::string::npos;
                 at = source.find(kind + name, at + 1)) {
                std::size_t const end = at + std::string(kind).size() + name.size();
                if (end == source.size() || !is_word_character(source[end]))
                    return true;
            }
    return false;
}

std::vector<std::string> used_twice_naming_no_type(std::map<std::string, int> const& uses,
                                                    std::vector<std::string> const& sources) {
    std::vector<std::string> macros;
    for (auto const& [name, count] : uses)
        if (count >= 2 && !names_a_type(name, sources))
            macros.push_back(name);
    return macros;
}

}  // namespace macro_reading

using namespace macro_reading;

macro_kind const& loop_macros() {
    static macro_kind const kind = {"for each macro", "ForEachMacros", "type name(void) {\n", "  ",
                                    "(name, SOME) {\n    SOME;\n  }\n", "}", &loop_macros_used_in};
    return kind;
}

macro_kind const& statement_macros() {
    static macro_kind const kind = {"statement macro", "StatementMacros", "type name(void) {\n", "  ",
                                    "(name)\n  SOME;\n", "}", &statement_macros_used_in};
    return kind;
}

macro_kind const& attribute_macros() {
    static macro_kind const kind = {"attribute macro", "AttributeMacros", "", "static ", " type *name;\n", "",
                                    &attribute_macros_used_in};
    return kind;
}

std::vector<macro_kind> const& macro_kinds() {
    static std::vector<macro_kind> const kinds = {loop_macros(), statement_macros(), attribute_macros()};
    return kinds;
}

macro_kind const* macro_kind_of(std::string const& structure) {
    for (macro_kind const& kind : macro_kinds())
        if (kind.structure == structure)
            return &kind;
    return nullptr;
}

std::string macros_form_for(macro_kind const& kind, std::vector<std::string> const& macros) {
    std::string form = kind.head;
    for (std::string const& macro : macros)
        if (is_name(macro) && !is_keyword(macro))
            form += kind.before + macro + kind.after;
    // A form ends with its last token.
    form += kind.tail;
    while (!form.empty() && form.back() == '\n')
        form.pop_back();
    return form;
}

namespace {

// The expression of a piece next to a name: a word at the name's side needs a blank between.
std::string piece_expression(std::string const& code, bool name_before, bool name_after) {
    std::vector<std::string> const tokens = tokens_of(code);
    std::string expression = expression_for(tokens);
    if (tokens.empty())
        return expression;
    std::string const any_gap = "\\s*";
    if (name_before && is_name(tokens.front()) && expression.compare(0, any_gap.size(), any_gap) == 0)
        expression = "\\s+" + expression.substr(any_gap.size());
    if (name_after && is_name(tokens.back()) && expression.size() >= any_gap.size() &&
        expression.compare(expression.size() - any_gap.size(), any_gap.size(), any_gap) == 0)
        expression = expression.substr(0, expression.size() - any_gap.size()) + "\\s+";
    return expression;
}

}  // namespace

std::string macros_expression(macro_kind const& kind) {
    return expression_for(tokens_of(kind.head)) + "(?:" + piece_expression(kind.before, false, true) +
           "[A-Za-z_][A-Za-z0-9_]*" + piece_expression(kind.after, true, false) + ")+" +
           expression_for(tokens_of(kind.tail));
}

std::vector<std::string> macros_named_in(macro_kind const& kind, std::string const& form) {
    std::vector<std::string> const tokens = tokens_of(form);
    std::vector<std::string> const head = tokens_of(kind.head);
    std::vector<std::string> const before = tokens_of(kind.before);
    std::vector<std::string> after = tokens_of(kind.after);
    after.resize(std::min<std::size_t>(after.size(), 2));
    std::vector<std::string> names;
    // Each name after the head, between the tokens of a use.
    for (std::size_t i = head.size() + before.size(); i + after.size() < tokens.size(); ++i) {
        std::string const& token = tokens[i];
        if (!is_name(token) || is_keyword(token) || std::find(names.begin(), names.end(), token) != names.end())
            continue;
        if (std::equal(before.begin(), before.end(), tokens.begin() + static_cast<long>(i - before.size())) &&
            std::equal(after.begin(), after.end(), tokens.begin() + static_cast<long>(i + 1)))
            names.push_back(token);
    }
    return names;
}

std::string macros_option_for(macro_kind const& kind, std::vector<std::string> const& macros) {
    std::string list;
    for (std::string const& macro : macros)
        list += (list.empty() ? "" : ", ") + macro;
    return "{" + kind.option + ": [" + list + "]}";
}

}  // namespace tarnel_engine
