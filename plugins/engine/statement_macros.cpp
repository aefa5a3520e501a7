// A scan of the sources' lines, bounded by their size; a line is judged by the lines around it.
#include "statement_macros.h"

#include "project_macros.h"
#include "text_lines.h"

#include <map>
#include <sstream>

namespace tarnel_engine {

using namespace macro_reading;

namespace {

// Whether a line begins a statement or declaration of its own, or closes a block, rather than
// carrying on the one before it.
bool begins_a_statement(std::string const& text) {
    if (text.empty())
        return true;
    char const first = text[0];
    if (first == '{' || first == '\\')
        return false;
    static std::string const carrying_on = "&|+-*/%?:.,=<>^!)]";
    // A comment, an include or a closing brace begins nothing that carries on.
    if (text.compare(0, 2, "//") == 0 || text.compare(0, 2, "/*") == 0)
        return true;
    return carrying_on.find(first) == std::string::npos;
}

// The columns of a line's leading white space, a tab to the next multiple of 8 (only compared
// between neighbouring lines).
std::size_t indent_of(std::string const& line) {
    std::size_t columns = 0;
    for (char const c : line) {
        if (c == ' ')
            ++columns;
        else if (c == '\t')
            columns = columns / 8 * 8 + 8;
        else
            break;
    }
    return columns;
}

}  // namespace

std::vector<std::string> statement_macros_used_in(std::vector<std::string> const& sources) {
    std::map<std::string, int> uses;
    for (std::string const& source : sources) {
        std::istringstream stream(source);
        std::vector<std::string> lines;
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
        std::string previous;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            std::string const& line = lines[i];
            std::string const text = trimmed(line);
            if (text.empty())
                continue;
            std::string const last = trimmed(previous);
            previous = line;
            if (line[0] != ' ' && line[0] != '\t')
                continue;
            // A label or an access specifier ends with `:`, a qualifier before a function's name with `::`.
            bool const after_label = !last.empty() && last.back() == ':' && last[0] != '#' &&
                                     (last.size() < 2 || last[last.size() - 2] != ':');
            bool const after_statement = last.empty() || last.back() == ';' || last.back() == '{' ||
                                         last.back() == '}' || last.back() == '/' || after_label;
            if (!after_statement)
                continue;
            std::string const name = name_opening(text, std::string());
            if (name.empty())
                continue;
            // The next line of code, preprocessor lines passed over.
            std::size_t next = i + 1;
            while (next < lines.size() && (trimmed(lines[next]).empty() || trimmed(lines[next])[0] == '#'))
                ++next;
            // A loop's body stands further in; a statement after the macro's use does not.
            bool const further = next < lines.size() && indent_of(lines[next]) > indent_of(line);
            if (next < lines.size() && !further && begins_a_statement(trimmed(lines[next])))
                ++uses[name];
        }
    }
    return used_twice_naming_no_type(uses, sources);
}

}  // namespace tarnel_engine
