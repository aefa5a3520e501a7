// A scan of the sources' lines, bounded by their size: each line's opening run of words (and `*`,
// `&`) is read as the specifiers and the name of a declaration when what ends it can end one.
#include "attribute_macros.h"

#include "project_macros.h"
#include "text_lines.h"

#include <cctype>
#include <map>
#include <set>
#include <sstream>

namespace tarnel_engine {

using namespace macro_reading;

namespace {

bool is_word_character(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool is_type_of_the_language(std::string const& word) {
    static std::set<std::string> const types = {
        "void",    "int",   "char",    "short",   "long",    "signed",   "unsigned", "float",    "double",  "bool",
        "_Bool",   "auto",  "wchar_t", "char8_t", "char16_t", "char32_t", "__int8",  "__int16", "__int32", "__int64",
        "__int128", "_Complex"};
    return types.count(word) != 0;
}

bool opens_no_declaration(std::string const& word) {
    static std::set<std::string> const words = {"return", "if",    "else",   "case",   "goto",  "while",
                                                "for",    "do",    "switch", "sizeof", "throw", "delete",
                                                "new",    "break", "continue", "co_return", "using", "namespace",
                                                "template", "typename", "operator", "public", "private", "protected"};
    return words.count(word) != 0;
}

// A line's opening run: its words (pointer and reference marks skipped) and the character that
// ends it (0 at the end of the line, or at an attribute of the language's own).
struct opening_run {
    std::vector<std::string> words;
    char end = 0;
    bool marks = false;
};

opening_run opening_run_of(std::string const& text) {
    opening_run run;
    std::size_t at = 0;
    while (at < text.size()) {
        char const c = text[at];
        if (c == ' ' || c == '\t') {
            ++at;
        } else if (c == '*' || c == '&') {
            run.marks = true;
            ++at;
        } else if (is_word_character(c)) {
            std::size_t end = at;
            while (end < text.size() && is_word_character(text[end]))
                ++end;
            std::string const word = text.substr(at, end - at);
            if (word == "__attribute__" || word == "__declspec" || word == "alignas" || word == "_Alignas")
                return run;
            run.words.push_back(word);
            at = end;
        } else {
            run.end = c;
            return run;
        }
    }
    return run;
}

// `UNUSED`, `MAYBE_UNUSED2`: capitals, digits and underscores, at least two capitals.
bool in_capitals(std::string const& word) {
    int capitals = 0;
    for (char c : word) {
        if (std::islower(static_cast<unsigned char>(c)))
            return false;
        capitals += std::isupper(static_cast<unsigned char>(c)) ? 1 : 0;
    }
    return capitals >= 2;
}

bool could_be_attribute(std::string const& word) {
    return is_name(word) && !is_keyword(word) && !is_type_of_the_language(word);
}

// The attributes among a declaration's specifiers: every other word before its name when the
// specifiers hold a type of the language or a tagged type (whose tag is no attribute).
// `next` is the line after (empty at the end): a head that ends its line is a class's only when the
// next line opens its body or its bases (`struct tag name` over `= init;` declares a variable).
std::vector<std::string> attributes_declared_in(opening_run const& run, std::string const& next) {
    std::vector<std::string> found;
    std::vector<std::string> const& words = run.words;
    if (words.size() < 3 || opens_no_declaration(words[0]))
        return found;
    bool const declaration_end = run.end == '(' || run.end == ';' || run.end == '=' || run.end == '[' ||
                                 run.end == ',' || run.end == ')' || run.end == '{';
    // `class EXPORT name {` or `class EXPORT name : base`.
    bool const body_next = !next.empty() && (next[0] == '{' || next[0] == ':');
    bool const type_head = (words[0] == "class" || words[0] == "struct" || words[0] == "union") && !run.marks &&
                           (run.end == '{' || run.end == ':' || (run.end == 0 && (next.empty() || body_next)));
    if (type_head) {
        for (std::size_t i = 1; i + 1 < words.size(); ++i)
            if (could_be_attribute(words[i]))
                found.push_back(words[i]);
        return found;
    }
    if (!declaration_end)
        return found;
    bool typed = false;
    std::vector<bool> tag(words.size(), false);
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        typed = typed || is_type_of_the_language(words[i]);
        if ((words[i] == "struct" || words[i] == "union" || words[i] == "enum" || words[i] == "class") &&
            i + 2 < words.size()) {
            typed = true;
            tag[i + 1] = true;
        }
    }
    if (!typed)
        return found;
    // An attribute may follow a variable's or a parameter's name too (`int name __read_mostly;`,
    // `void *data UNUSED)`): a last word written as macros are (two underscores first, or in
    // capitals) after one that can be a name. Read as the name, it would make the parameter's
    // name an attribute.
    std::size_t name = words.size() - 1;
    bool const variable = run.end == ';' || run.end == '=' || run.end == '[';
    bool const parameter = run.end == ',' || run.end == ')';
    bool const macro_written = words[name].compare(0, 2, "__") == 0 ||
                               ((variable || parameter) && in_capitals(words[name]));
    if ((variable || parameter) && macro_written && could_be_attribute(words[name]) &&
        could_be_attribute(words[name - 1]) && !tag[name - 1] && words.size() >= 3) {
        found.push_back(words[name]);
        --name;
    }
    for (std::size_t i = 0; i < name; ++i)
        if (!tag[i] && could_be_attribute(words[i]))
            found.push_back(words[i]);
    return found;
}

// The attributes on a line of words of their own before a declaration that has specifiers of its
// own (`static __always_inline` over `void f(void)`): with `static`, `extern` or `inline` beside
// them, or named as such macros mostly are, with two underscores first.
std::vector<std::string> attributes_over(opening_run const& run, opening_run const& next) {
    std::vector<std::string> found;
    if (run.end != 0 || run.marks || run.words.empty() || opens_no_declaration(run.words[0]))
        return found;
    if (next.words.size() < 2 || opens_no_declaration(next.words[0]) ||
        !(next.end == '(' || next.end == ';' || next.end == '=' || next.end == '['))
        return found;
    bool storage = false;
    for (std::string const& word : run.words)
        storage = storage || word == "static" || word == "extern" || word == "inline";
    for (std::string const& word : run.words)
        if (could_be_attribute(word) && (storage || word.compare(0, 2, "__") == 0))
            found.push_back(word);
    return found;
}

}  // namespace

std::vector<std::string> attribute_macros_used_in(std::vector<std::string> const& sources) {
    std::map<std::string, int> uses;
    for (std::string const& source : sources) {
        std::istringstream stream(source);
        std::vector<std::string> code;
        bool in_comment = false;
        // The lines of code, comments and preprocessor lines left out (a line holding code and a
        // comment is read up to it).
        for (std::string line; std::getline(stream, line);) {
            std::string text = trimmed(line);
            if (in_comment) {
                std::size_t const end = text.find("*/");
                if (end == std::string::npos)
                    continue;
                in_comment = false;
                text = trimmed(text.substr(end + 2));
            }
            std::size_t const opened = text.find("/*");
            if (opened != std::string::npos && text.find("*/", opened + 2) == std::string::npos) {
                in_comment = true;
                text = trimmed(text.substr(0, opened));
            }
            if (text.empty() || text[0] == '#' || text.compare(0, 2, "//") == 0 || text.back() == '\\')
                continue;
            code.push_back(text);
        }
        for (std::size_t i = 0; i < code.size(); ++i) {
            opening_run const run = opening_run_of(code[i]);
            for (std::string const& name : attributes_declared_in(run, i + 1 < code.size() ? code[i + 1] : ""))
                ++uses[name];
            if (i + 1 < code.size())
                for (std::string const& name : attributes_over(run, opening_run_of(code[i + 1])))
                    ++uses[name];
        }
    }
    std::vector<std::string> macros;
    for (auto const& [name, count] : uses)
        if (count >= 2)
            macros.push_back(name);
    return macros;
}

}  // namespace tarnel_engine
