// The form is built and read with the catalogue's own tokenizer; finding the macros in sources is a
// scan of their lines, bounded by their size.
#include "loop_macros.h"

#include "structure_catalogue.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <sstream>

namespace tarnel_engine {

std::string const loop_macros_structure = "for each macro";

namespace {

std::string const head = "type name(void) {\n";
std::string const loop = "(name, SOME) {\n    SOME;\n  }\n";
std::string const tail = "}";

bool is_word_character(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool is_name(std::string const& token) {
    return !token.empty() && !std::isdigit(static_cast<unsigned char>(token[0])) &&
           std::all_of(token.begin(), token.end(), is_word_character);
}

// Words that open statements or expressions of their own, never a macro's name.
bool is_keyword(std::string const& word) {
    static std::set<std::string> const keywords = {
        "if", "for", "while", "switch", "catch", "return", "sizeof", "alignof", "_Alignof", "decltype", "typeof",
        "typeof_unqual", "static_assert", "_Static_assert", "_Generic", "__attribute__", "__declspec", "defined",
        "do", "else", "case", "default", "new", "delete", "throw", "noexcept", "requires", "operator", "void",
        "type", "name", "SOME"};
    return keywords.count(word) != 0;
}

std::string trimmed(std::string const& line) {
    std::size_t const begin = line.find_first_not_of(" \t\r");
    if (begin == std::string::npos)
        return std::string();
    return line.substr(begin, line.find_last_not_of(" \t\r") - begin + 1);
}

// The name that opens `text` when what follows it is its arguments in parentheses and then
// `ending` (blanks allowed between); empty otherwise.
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

}  // namespace

std::string loop_macros_form_for(std::vector<std::string> const& macros) {
    std::string form = head;
    for (std::string const& macro : macros)
        if (is_name(macro) && !is_keyword(macro))
            form += "  " + macro + loop;
    return form + tail;
}

std::string loop_macros_expression() {
    // Each piece's expression allows white space around it; a name needs none more.
    return expression_for(tokens_of(head)) + "(?:[A-Za-z_][A-Za-z0-9_]*" + expression_for(tokens_of(loop)) + ")+" +
           expression_for(tokens_of(tail));
}

std::vector<std::string> loop_macros_named_in(std::string const& form) {
    std::vector<std::string> const tokens = tokens_of(form);
    std::vector<std::string> names;
    // The name before each `(name, SOME)` that follows the function's head.
    for (std::size_t i = 1; i + 1 < tokens.size(); ++i)
        if (i > 5 && tokens[i] == "(" && tokens[i + 1] == "name" && is_name(tokens[i - 1]) && !is_keyword(tokens[i - 1]) &&
            std::find(names.begin(), names.end(), tokens[i - 1]) == names.end())
            names.push_back(tokens[i - 1]);
    return names;
}

std::string loop_macros_option_for(std::vector<std::string> const& macros) {
    std::string list;
    for (std::string const& macro : macros)
        list += (list.empty() ? "" : ", ") + macro;
    return "{ForEachMacros: [" + list + "]}";
}

std::vector<std::string> loop_macros_used_in(std::vector<std::string> const& sources) {
    std::map<std::string, int> uses;
    for (std::string const& source : sources) {
        std::istringstream stream(source);
        std::string line;
        std::string previous;
        while (std::getline(stream, line)) {
            // At statement level: indented, after a line that ends a statement or opens a block.
            std::string const text = trimmed(line);
            if (!text.empty() && (line[0] == ' ' || line[0] == '\t')) {
                std::string const last = trimmed(previous);
                bool const after_statement = last.empty() || last.back() == ';' || last.back() == '{' ||
                                             last.back() == '}' || last.back() == ':' || last.back() == '/';
                if (after_statement) {
                    std::string const name = name_opening(text, "{");
                    if (!name.empty())
                        ++uses[name];
                }
            }
            // The brace on a line of its own under the loop's head.
            if (text == "{" && (previous.size() > 0 && (previous[0] == ' ' || previous[0] == '\t'))) {
                std::string const name = name_opening(trimmed(previous), std::string());
                if (!name.empty())
                    ++uses[name];
            }
            if (!text.empty())
                previous = line;
        }
    }
    std::vector<std::string> macros;
    for (auto const& [name, count] : uses) {
        if (count < 2)
            continue;
        // A constructor defined in its class has the same shape.
        bool named_type = false;
        for (std::string const& source : sources)
            for (char const* kind : {"class ", "struct ", "union "})
                named_type = named_type || source.find(kind + name) != std::string::npos;
        if (!named_type)
            macros.push_back(name);
    }
    return macros;
}

}  // namespace tarnel_engine
