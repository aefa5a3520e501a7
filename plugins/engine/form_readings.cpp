// Each reading looks at the forms of the structures that show it; a structure missing from the
// addon leaves its reading out, and the search settles it.
#include "form_readings.h"

#include "project_macros.h"
#include "text_columns.h"
#include "text_lines.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace tarnel_engine {

namespace {

std::string flag(bool value) { return value ? "true" : "false"; }

// The structures of Java, JavaScript and C# that show what a structure of C's shows under another
// name: a function's body, a short and an empty function. The readings, written for C's names,
// find them under those names where the forms have no structure of C's name. (Not Java's long
// method call: under tabs everywhere its continuation starts with a tab that C's reading takes
// for tabs used for continuation, and no kept call of Java's tells them apart.)
std::vector<std::pair<char const*, char const*>> const& counterparts_of_c_structures() {
    static std::vector<std::pair<char const*, char const*>> const counterparts = {
        {"method", "function definition"}, {"function", "function definition"}, {"short method", "short function"},
        {"empty method", "empty function"}};
    return counterparts;
}

class forms_by_name {
public:
    // Indentation measured with tabs of `tab_width` columns.
    explicit forms_by_name(std::vector<form_case> const& forms, int tab_width = 8) : tab_width(tab_width) {
        for (form_case const& form : forms)
            codes[form.structure] = form.code;
        for (auto const& [structure, of_c] : counterparts_of_c_structures())
            if (codes.count(structure) && !codes.count(of_c))
                codes[of_c] = codes[structure];
    }
    std::string const* find(std::string const& structure) const {
        auto const found = codes.find(structure);
        return found == codes.end() ? nullptr : &found->second;
    }
    bool has_one_line(std::string const& structure) const {
        std::string const* code = find(structure);
        return code && code->find('\n') == std::string::npos;
    }
    // The first line of the form whose text (blanks trimmed) starts with `prefix`, or -1.
    int line_starting(std::string const& structure, std::string const& prefix) const {
        std::string const* code = find(structure);
        if (!code)
            return -1;
        std::vector<std::string> const lines = lines_of(*code);
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (starts_with(trimmed(lines[i]), prefix))
                return static_cast<int>(i);
        return -1;
    }
    int indent_of_line(std::string const& structure, int line) const {
        std::string const* code = find(structure);
        std::vector<std::string> const lines = code ? lines_of(*code) : std::vector<std::string>();
        return line < 0 || line >= static_cast<int>(lines.size()) ? -1 : indentation_columns_of(lines[line], tab_width);
    }
    // How much further in than the form's first line the line after the first line that ends with
    // an opening brace stands (a body, wherever its head was wrapped), or 0.
    int body_step(std::string const& structure) const {
        std::string const* code = find(structure);
        std::vector<std::string> const lines = code ? lines_of(*code) : std::vector<std::string>();
        for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            if (!text.empty() && text.back() == '{')
                return indentation_columns_of(lines[i + 1], tab_width) - indentation_columns_of(lines[0], tab_width);
        }
        return 0;
    }
    // Whether the brace found after the first occurrence of `after` (from the start when empty)
    // begins its line: -1 when the form or the brace is missing.
    int brace_on_own_line(std::string const& structure, std::string const& after = std::string()) const {
        std::string const* code = find(structure);
        if (!code)
            return -1;
        std::size_t const from = after.empty() ? 0 : code->find(after);
        if (from == std::string::npos)
            return -1;
        std::size_t const brace = code->find('{', from + after.size());
        if (brace == std::string::npos)
            return -1;
        std::size_t const before = code->find_last_not_of(" \t", brace == 0 ? 0 : brace - 1);
        return brace > 0 && before != std::string::npos && (*code)[before] == '\n' ? 1 : 0;
    }
    // Whether the keyword begins its line (as `else` after a closing brace does under some styles).
    int keyword_begins_line(std::string const& structure, std::string const& keyword) const {
        return line_starting(structure, keyword) < 0 ? (find(structure) ? 0 : -1) : 1;
    }
    bool contains(std::string const& structure, std::string const& text) const {
        std::string const* code = find(structure);
        return code && code->find(text) != std::string::npos;
    }

private:
    std::map<std::string, std::string> codes;
    int tab_width;
};

// Braces indented while they stay on the line of their statement put the statements two steps in
// (twice as far as a function's body, which indented braces leave alone), or the statement itself
// one step in.
bool attached_braces_indented(forms_by_name const& forms) {
    int const function_step = forms.body_step("function definition");
    int const statement = forms.line_starting("if", "if");
    return forms.brace_on_own_line("if") == 0 && function_step > 0 && statement >= 0 &&
           (forms.body_step("if") == 2 * function_step || forms.indent_of_line("if", statement) > 0);
}

// The tab width under which the backslashes that end the lines of the macro stand in one column
// (the engine lines them up), or 0 when no tab precedes them or no width lines them up.
int tab_width_of_macro_in(std::vector<form_case> const& forms) {
    for (form_case const& form : forms) {
        if (form.structure != "macro" || form.code.find('\t') == std::string::npos)
            continue;
        std::vector<std::string> const lines = lines_of(form.code);
        for (int tab_width : {8, 4, 2, 3, 5, 6, 7, 1}) {
            std::set<int> columns;
            for (std::string const& line : lines)
                if (!line.empty() && line.back() == '\\')
                    columns.insert(columns_of(line, tab_width));
            if (columns.size() == 1)
                return tab_width;
        }
    }
    return 0;
}

bool indented_with_tab(std::string const& line) {
    std::size_t const text = line.find_first_not_of(" \t");
    return line.substr(0, text).find('\t') != std::string::npos;
}

// The column just after the last parenthesis the line leaves open, or -1.
int column_after_open_parenthesis(std::string const& line, int tab_width) {
    std::vector<int> open;
    int column = 0;
    for (char c : line) {
        column += c == '\t' ? tab_width - column % tab_width : 1;
        if (c == '(')
            open.push_back(column);
        else if (c == ')' && !open.empty())
            open.pop_back();
    }
    return open.empty() ? -1 : open.back();
}

// Where the last `opening` bracket that the line leaves open stands, or npos.
std::size_t last_left_open(std::string const& line, char opening, char closing) {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < line.size(); ++i)
        if (line[i] == opening)
            open.push_back(i);
        else if (line[i] == closing && !open.empty())
            open.pop_back();
    return open.empty() ? std::string::npos : open.back();
}

// The column of the first item after the last parenthesis the line leaves open (past the blanks
// that parentheses with spaces inside set after it), or just after it where nothing follows, or -1.
int column_of_item_after_open_parenthesis(std::string const& line, int tab_width) {
    std::size_t const open = last_left_open(line, '(', ')');
    if (open == std::string::npos)
        return -1;
    std::size_t const item = line.find_first_not_of(' ', open + 1);
    return columns_of(line.substr(0, item == std::string::npos ? open + 1 : item), tab_width);
}

// The column of what follows the last brace the line leaves open, where something does (an
// enumeration or a list of values whose next line lines up under its first item), or -1: a brace
// that ends its line (before a comment, or a macro's backslash) opens a block, whose lines stand an
// indent step in, not lined up.
int column_after_open_brace(std::string const& line, int tab_width) {
    std::size_t const open = last_left_open(line, '{', '}');
    if (open == std::string::npos)
        return -1;
    std::size_t const item = line.find_first_not_of(" \t", open + 1);
    return item == std::string::npos || line[item] == '/' || line[item] == '\\' ? -1
                                                                                : columns_of(line.substr(0, item), tab_width);
}

// The column of the line's trailing comment (a comment after code), or -1.
int column_of_trailing_comment(std::string const& line, int tab_width) {
    std::size_t const comment = line.find("//");
    if (comment == std::string::npos || trimmed(line.substr(0, comment)).empty())
        return -1;
    return columns_of(line.substr(0, comment), tab_width);
}

// How well a tab width fits the code: lines indented with tabs that stand under the parenthesis the
// line above leaves open (just after it, or under the first item after it where blanks follow it),
// under the first item after a brace it leaves open, or (a comment on a
// line of its own) under its trailing comment, count for it; steps after an opening brace other than the most common one
// (a tab-indented line under a blank-indented one one step out) count against it.
struct tab_width_fit {
    long score = 0;
};

tab_width_fit fit_of(int tab_width, std::vector<std::string> const& codes) {
    tab_width_fit fit;
    std::map<int, long> steps;
    long all_steps = 0;
    for (std::string const& code : codes) {
        std::string previous;
        for (std::string const& line : lines_of(code)) {
            if (trimmed(line).empty())
                continue;
            std::string const last = trimmed(previous);
            if (!last.empty() && last.back() == '{' && last.find('\\') == std::string::npos) {
                ++steps[indentation_columns_of(line, tab_width) - indentation_columns_of(previous, tab_width)];
                ++all_steps;
            } else if (indented_with_tab(line) && !previous.empty() &&
                       (indentation_columns_of(line, tab_width) == column_after_open_parenthesis(previous, tab_width) ||
                        indentation_columns_of(line, tab_width) ==
                            column_of_item_after_open_parenthesis(previous, tab_width) ||
                        indentation_columns_of(line, tab_width) == column_after_open_brace(previous, tab_width) ||
                        (starts_with(trimmed(line), "//") &&
                         indentation_columns_of(line, tab_width) == column_of_trailing_comment(previous, tab_width)))) {
                ++fit.score;
            }
            previous = line;
        }
    }
    auto const most_common =
        std::max_element(steps.begin(), steps.end(), [](auto const& a, auto const& b) { return a.second < b.second; });
    if (most_common != steps.end())
        fit.score -= all_steps - most_common->second + (most_common->first <= 0 ? most_common->second : 0);
    return fit;
}

// Lines that a width rules out where the code was laid out by the engine: a line that opens a
// block's body stands at least one indent step in, and the engine writes as many tabs as fit in
// that indentation, so blanks alone there as wide as a tab cannot be its indentation.
long lines_ruling_out(int tab_width, std::vector<std::string> const& codes) {
    long ruled_out = 0;
    for (std::string const& code : codes) {
        std::string previous;
        for (std::string const& line : lines_of(code)) {
            if (trimmed(line).empty())
                continue;
            std::string const last = trimmed(previous);
            bool const opens_body = !last.empty() && last.back() == '{' && last.find('\\') == std::string::npos &&
                                    last.find('=') == std::string::npos && last.find('[') == std::string::npos;
            if (opens_body && line[0] == ' ' && !indented_with_tab(line) && indentation_columns_of(line, 8) >= tab_width)
                ++ruled_out;
            previous = line;
        }
    }
    return ruled_out;
}

// The first width of this order that fits the code better than every other, or 0; widths that
// some line of the code the engine laid out rules out fit worse than every other.
int tab_width_fitting(std::vector<std::string> const& codes, std::vector<std::string> const& laid_out = {}) {
    std::vector<int> const widths = {8, 4, 2, 3};
    std::vector<long> scores;
    for (int tab_width : widths)
        scores.push_back(fit_of(tab_width, codes).score - 1000 * lines_ruling_out(tab_width, laid_out));
    auto const best = std::max_element(scores.begin(), scores.end());
    if (std::count(scores.begin(), scores.end(), *best) == static_cast<long>(scores.size()))
        return 0;
    return widths[static_cast<std::size_t>(best - scores.begin())];
}

}  // namespace

int tab_width_shown_by(std::vector<std::string> const& codes) { return tab_width_fitting(codes); }

int tab_width_read_from(std::vector<std::string> const& codes) {
    int const shown = tab_width_shown_by(codes);
    return shown ? shown : 8;
}

namespace {

int tab_width_read_from(std::vector<form_case> const& forms) {
    if (int const of_macro = tab_width_of_macro_in(forms))
        return of_macro;
    std::vector<std::string> codes, all_codes;
    for (form_case const& form : forms) {
        all_codes.push_back(form.code);
        if (form.code.find('\t') != std::string::npos)
            codes.push_back(form.code);
    }
    if (codes.empty())
        return 8;
    int const shown = tab_width_fitting(codes, all_codes);
    return shown ? shown : 8;
}

// The arguments of a long call continued on its next line, not under its parenthesis: how far in
// they stand is the continuation indent, and a tab there (no block indents them) is a tab used for
// continuation. A width of 0 when the form does not show it.
struct continuation {
    int width = 0;
    bool with_tab = false;
};

// How many tabs the indentation of a line holds.
long tabs_in_indent_of(std::string const& line) {
    std::size_t const text = line.find_first_not_of(" \t");
    return std::count(line.begin(), line.begin() + static_cast<long>(std::min(text, line.size())), '\t');
}

// A call its author continued on a second line inside a function, kept so (no column limit): a
// tab in the second line's indentation beyond those of the call's own line fills the way to where
// the arguments line up, which only tabs used for continuation do.
bool kept_continuation_with_tab(forms_by_name const& forms) {
    std::string const* code = forms.find("kept line break in a function");
    if (!code)
        return false;
    std::vector<std::string> const lines = lines_of(*code);
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        if (starts_with(trimmed(lines[i]), "name_long_part"))
            return column_after_open_parenthesis(lines[i], 8) >= 0 &&
                   tabs_in_indent_of(lines[i + 1]) > tabs_in_indent_of(lines[i]);
    return false;
}

// A declaration its author broke after a call's `(`, kept so (no column limit): how far in its
// arguments stand is the continuation indent; 0 where the form is missing or joined.
int kept_continuation_width(forms_by_name const& forms, int tab_width) {
    std::string const* code = forms.find("kept line break in a declaration");
    if (!code)
        return 0;
    std::vector<std::string> const lines = lines_of(*code);
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        if (!lines[i].empty() && lines[i].back() == '(' && indentation_columns_of(lines[i], tab_width) == 0)
            return indentation_columns_of(lines[i + 1], tab_width);
    return 0;
}

continuation continuation_read_from(forms_by_name const& forms, int tab_width) {
    std::string const* code = forms.find("long function call");
    std::vector<std::string> const lines = code ? lines_of(*code) : std::vector<std::string>();
    continuation read;
    read.with_tab = kept_continuation_with_tab(forms);
    if (lines.size() < 2 || indentation_columns_of(lines[0], tab_width) > 0) {
        // Without a limit the long call stays on its line: the kept declaration shows the width.
        int const kept = kept_continuation_width(forms, tab_width);
        if (kept > 0 && kept <= 8)
            read.width = kept;
        return read;
    }
    int const width = indentation_columns_of(lines[1], tab_width);
    if (width > 0 && width <= 8 && width != column_after_open_parenthesis(lines[0], tab_width)) {
        read.width = width;
        read.with_tab = read.with_tab || indented_with_tab(lines[1]);
    }
    return read;
}

std::string continuation_indent_read_from(std::vector<form_case> const& forms) {
    int const tab_width = tab_width_read_from(forms);
    continuation const read = continuation_read_from(forms_by_name(forms, tab_width), tab_width);
    return read.width ? "{ContinuationIndentWidth: " + std::to_string(read.width) + "}" : std::string();
}

// A trailing comment continued on a line of its own at the top level: the engine takes the way
// to it for no alignment, so a tab there is a tab used beyond the indentation.
bool continued_comment_with_tab(forms_by_name const& forms) {
    std::string const* code = forms.find("trailing comment continued");
    std::vector<std::string> const lines = code ? lines_of(*code) : std::vector<std::string>();
    return lines.size() == 2 && tabs_in_indent_of(lines[1]) > 0;
}

// The most common step after a line that ends with an opening brace, and tabs if any line starts
// with one (for continuation too where a continued call starts with one). Read together, because
// those options only work together.
std::string indentation_read_from(std::vector<form_case> const& forms) {
    int const tab_width = tab_width_read_from(forms);
    std::map<int, int> steps;
    bool tabs = false;
    for (form_case const& form : forms) {
        std::string previous;
        for (std::string const& line : lines_of(form.code)) {
            if (trimmed(line).empty())
                continue;
            tabs = tabs || line[0] == '\t';
            std::string const last = trimmed(previous);
            if (!last.empty() && last.back() == '{' && last.find("\\") == std::string::npos) {
                int const step = indentation_columns_of(line, tab_width) - indentation_columns_of(previous, tab_width);
                if (step > 0)
                    ++steps[step];
            }
            previous = line;
        }
    }
    if (steps.empty())
        return std::string();
    auto const most_common =
        std::max_element(steps.begin(), steps.end(), [](auto const& a, auto const& b) { return a.second < b.second; });
    std::string width = std::to_string(most_common->first);
    forms_by_name const named(forms, tab_width);
    if (attached_braces_indented(named))
        width = std::to_string(named.body_step("function definition"));
    // Braces indented by one step (the closing brace of an `if` further in than the `if`) put the
    // statements two steps in: the brace's own step is the indent.
    for (form_case const& form : forms) {
        std::vector<std::string> const lines = lines_of(form.code);
        if (form.structure != "if" || lines.size() < 3 || !starts_with(trimmed(lines.back()), "}"))
            continue;
        int const brace_step = indentation_columns_of(lines.back(), tab_width) - indentation_columns_of(lines.front(), tab_width);
        if (brace_step > 0 && brace_step < most_common->first)
            width = std::to_string(brace_step);
    }
    char const* const use = continuation_read_from(named, tab_width).with_tab || continued_comment_with_tab(named)
                                ? "ForContinuationAndIndentation"
                                : "ForIndentation";
    return tabs ? "{IndentWidth: " + width + ", TabWidth: " + std::to_string(tab_width) + ", UseTab: " + use + "}"
                : "{IndentWidth: " + width + ", UseTab: Never}";
}

// Specifiers one step in and members two steps in is the specifiers' own level; otherwise the
// offset is how far the specifiers stand left of the members.
std::string access_offset_read_from(forms_by_name const& forms) {
    std::string const structure = "access specifiers";
    int const head = forms.line_starting(structure, "class");
    int const specifier = forms.line_starting(structure, "public:");
    int const member = forms.line_starting(structure, "name(");
    if (head < 0 || specifier < 0 || member < 0)
        return std::string();
    int const outer = forms.indent_of_line(structure, head);
    int const step = forms.indent_of_line(structure, specifier) - outer;
    int const member_step = forms.indent_of_line(structure, member) - outer;
    if (step > 0 && member_step == 2 * step)
        return "{IndentAccessModifiers: true}";
    return "{AccessModifierOffset: " + std::to_string(step - member_step) + ", IndentAccessModifiers: false}";
}

// A line that ends with a return type (after Java's or C#'s modifiers) and opens no `(`.
bool return_type_alone_on(std::string const& line) {
    std::string const text = trimmed(line);
    return text.find('(') == std::string::npos &&
           (text == "type" || (text.size() > 5 && text.compare(text.size() - 5, 5, " type") == 0));
}

std::string first_line_of(std::string const& code) {
    std::size_t const end = code.find('\n');
    return end == std::string::npos ? std::string() : code.substr(0, end);
}

// Whether some line of a form is a return type alone (a member function's in a class, a
// declaration's in an extern block), or the form is missing.
bool return_type_alone_in(forms_by_name const& forms, std::string const& structure) {
    std::string const* code = forms.find(structure);
    if (!code)
        return true;
    for (std::string const& line : lines_of(*code))
        if (return_type_alone_on(line))
            return true;
    return false;
}

// Whether a method defined in its class has its return type on a line of its own: C++'s inline
// method, or C#'s attributes' method (`public void name_part() {}`); true where neither form is.
bool member_return_type_alone(forms_by_name const& forms) {
    if (forms.find("inline method") || !forms.find("attributes"))
        return return_type_alone_in(forms, "inline method");
    for (std::string const& line : lines_of(*forms.find("attributes")))
        if (trimmed(line) == "public void")
            return true;
    return false;
}

// The return type on a line of its own in declarations, or in definitions only; inside classes
// and extern blocks too or at the top level alone (with neither form, as everywhere); the name
// indented under it or not.
std::string return_type_read_from(forms_by_name const& forms) {
    std::string const* declaration = forms.find("function declaration");
    // Java and C# declare a method without a body only where its parameters are long.
    if (!declaration)
        declaration = forms.find("long method declaration");
    std::string const* definition = forms.find("function definition");
    if (!declaration || !definition)
        return std::string();
    bool const declarations_break = return_type_alone_on(first_line_of(*declaration));
    bool const definitions_break = return_type_alone_on(first_line_of(*definition));
    std::string reading =
        std::string("BreakAfterReturnType: ") +
        (declarations_break ? (return_type_alone_in(forms, "class") && return_type_alone_in(forms, "extern block")
                                   ? "All"
                                   : "TopLevel")
         : definitions_break ? (member_return_type_alone(forms) ? "AllDefinitions" : "TopLevelDefinitions")
                             : "None");
    if (definitions_break)
        reading += ", IndentWrappedFunctionNames: " + flag(forms.indent_of_line("function definition", 1) > 0);
    return "{" + reading + "}";
}

std::string case_labels_read_from(forms_by_name const& forms) {
    int const head = forms.line_starting("switch", "switch");
    int const label = forms.line_starting("switch", "case");
    if (head < 0 || label < 0)
        return std::string();
    bool const indented = forms.indent_of_line("switch", label) > forms.indent_of_line("switch", head);
    return "{IndentCaseLabels: " + flag(indented) + "}";
}

std::string namespace_indentation_read_from(forms_by_name const& forms) {
    int const inner = forms.line_starting("namespace", "namespace name_part");
    int const content = forms.line_starting("namespace", "type");
    if (inner < 0 || content < 0)
        return std::string();
    if (forms.indent_of_line("namespace", inner) > 0)
        return "{NamespaceIndentation: All}";
    return forms.indent_of_line("namespace", content) > 0 ? "{NamespaceIndentation: Inner}" : "{NamespaceIndentation: None}";
}

// Directives in a conditional block indented after the `#` or before it, and by how much.
std::string directives_read_from(forms_by_name const& forms) {
    std::string const* code = forms.find("preprocessor");
    if (!code)
        return std::string();
    std::vector<std::string> const lines = lines_of(*code);
    if (lines.size() < 2)
        return std::string();
    std::string const& inner = lines[1];
    std::size_t const hash = inner.find('#');
    if (hash == std::string::npos)
        return std::string();
    std::size_t const after = inner.find_first_not_of(" \t", hash + 1) - hash - 1;
    if (hash > 0)
        return "{IndentPPDirectives: BeforeHash, PPIndentWidth: " + std::to_string(indentation_columns_of(inner, 8)) + "}";
    if (after > 0)
        return "{IndentPPDirectives: AfterHash, PPIndentWidth: " + std::to_string(after) + "}";
    return "{IndentPPDirectives: None}";
}

std::string parentheses_read_from(forms_by_name const& forms) {
    std::string reading;
    bool const control = forms.contains("if", "if (");
    bool const call = forms.contains("function call", "name (");
    bool const empty =
        forms.contains("access specifiers", "name ()") || forms.contains("call without arguments", "name_part ()");
    if (forms.find("if") && forms.find("function call")) {
        char const* value = control ? (call ? (empty ? "Always" : "NonEmptyParentheses") : "ControlStatements")
                                    : (call ? nullptr : "Never");
        if (value)
            reading += std::string("SpaceBeforeParens: ") + value;
    }
    if (forms.find("if") && forms.find("function call")) {
        bool const in_conditions = forms.contains("if", "( ");
        bool const other = forms.contains("function call", "( ");
        if (!reading.empty())
            reading += ", ";
        reading += in_conditions || other ? "SpacesInParens: Custom, SpacesInParensOptions: {InConditionalStatements: " +
                                                flag(in_conditions) + ", Other: " + flag(other) + "}"
                                          : "SpacesInParens: Never";
    }
    return reading.empty() ? reading : "{" + reading + "}";
}

std::string leaning_of(std::string const* code, char mark) {
    if (!code)
        return std::string();
    std::size_t const at = code->find(mark);
    if (at == std::string::npos || at == 0 || at + 1 >= code->size())
        return std::string();
    bool const before = (*code)[at - 1] == ' ';
    bool const after = (*code)[at + 1] == ' ';
    return before && after ? "Middle" : before ? "Right" : after ? "Left" : std::string();
}

// Declarations leaning two ways, written so, that all lean as most of them do while a lone pointer
// leans the other way: the style derives the leaning from the code it formats.
std::string pointers_read_from(forms_by_name const& forms) {
    std::string const pointer = leaning_of(forms.find("pointer"), '*');
    std::string const reference = leaning_of(forms.find("reference"), '&');
    std::string const mixed = leaning_of(forms.find("mixed pointers"), '*');
    bool const derived = !pointer.empty() && !mixed.empty() && mixed != pointer;
    std::string reading = std::string("DerivePointerAlignment: ") + flag(derived);
    if (!pointer.empty())
        reading += ", PointerAlignment: " + pointer;
    if (!reference.empty())
        reading += ", ReferenceAlignment: " + (reference == pointer ? std::string("Pointer") : reference);
    return "{" + reading + "}";
}

// The blanks around the `const` between two `*`: where pointers lean on the name the leaning
// leaves none before it, on the type none after it; a blank there is the style's rule for
// qualifiers (read against the lone pointer's leaning; nothing where that leans neither way).
std::string pointer_qualifiers_read_from(forms_by_name const& forms) {
    std::string const* code = forms.find("pointer qualifiers");
    std::string const pointer = leaning_of(forms.find("pointer"), '*');
    std::size_t const qualifier = code ? code->find("const") : std::string::npos;
    if (qualifier == std::string::npos || qualifier == 0 || qualifier + 5 >= code->size())
        return std::string();
    if (pointer == "Right" && (*code)[qualifier - 1] == ' ')
        return "{SpaceAroundPointerQualifiers: Before}";
    if (pointer == "Left" && (*code)[qualifier + 5] == ' ')
        return "{SpaceAroundPointerQualifiers: After}";
    return std::string();
}

// A lone `if` sharing its statement's line, and in a chain without braces the first `if` alone or
// every `if` and `else` too.
char const* short_ifs_read_from(forms_by_name const& forms) {
    char const* value = forms.has_one_line("short if") ? "WithoutElse" : "Never";
    std::string const* chain = forms.find("short if else");
    if (!chain)
        return value;
    std::vector<std::string> const lines = lines_of(*chain);
    auto const shares_its_line = [&](std::string const& opening) {
        for (std::string const& line : lines) {
            std::string const text = trimmed(line);
            if (starts_with(text, opening))
                return !text.empty() && text.back() == ';';
        }
        return false;
    };
    if (!shares_its_line("if"))
        return value;
    return shares_its_line("else if") ? "AllIfsAndElse" : "OnlyFirstIf";
}

// Whether the destructor whose line starts so shares it with its body (no return type keeps it
// apart, as one can keep the other functions of the forms apart).
bool destructor_joined(forms_by_name const& forms, std::string const& opening) {
    int const line = forms.line_starting("destructors", opening);
    return line >= 0 && lines_of(*forms.find("destructors"))[static_cast<std::size_t>(line)].find('}') != std::string::npos;
}

// Which functions share a line with their short body: every one, those defined in a class (and
// the empty ones), or only the empty ones.
std::string short_functions_read_from(forms_by_name const& forms) {
    if (!forms.find("short function") || !forms.find("empty function"))
        return std::string();
    bool const short_function = forms.has_one_line("short function") || destructor_joined(forms, "name_part::~");
    bool const empty_function = forms.has_one_line("empty function") || destructor_joined(forms, "name::~");
    std::string const* method = forms.find("inline method");
    bool const inline_method = method && method->find("{ return") != std::string::npos;
    char const* value = short_function                     ? "All"
                        : inline_method && empty_function ? "Inline"
                        : inline_method                    ? "InlineOnly"
                        : empty_function                   ? "Empty"
                                                           : "None";
    return std::string("{AllowShortFunctionsOnASingleLine: ") + value + "}";
}

// Without a limit the engine keeps an empty body on the lines its author wrote it on, so the ways
// of packing constructor initializers that join such a body to their line give it back apart too.
// Where empty functions share their line, an empty constructor body apart after its initializers
// shows a packing that keeps it so: the initializers on the next line only where the body's brace
// has a line of its own (never packed, or packed after commas that begin lines, the other forms
// tell). Not where commas begin lines: the engine keeps them so under either packing.
std::string constructor_packing_read_from(forms_by_name const& forms) {
    std::string const* constructor = forms.find("kept line breaks in constructor initializers");
    if (!constructor || !(forms.has_one_line("empty function") || destructor_joined(forms, "name::~")))
        return std::string();
    std::vector<std::string> const lines = lines_of(*constructor);
    if (lines.size() < 2 || trimmed(lines.back()) != "}" ||
        forms.line_starting("kept line breaks in constructor initializers", ",") >= 0)
        return std::string();
    return "{PackConstructorInitializers: NextLineOnly}";
}

// Without a limit the engine keeps initializers on the lines their author broke them over where
// a colon or a comma ends a line; only where commas begin lines does it join them when they may
// share one: joined after the colon that begins a line, they show commas first.
std::string constructor_commas_read_from(forms_by_name const& forms) {
    int const colon = forms.line_starting("kept line breaks in constructor initializers", ":");
    if (colon < 0)
        return std::string();
    std::string const line =
        lines_of(*forms.find("kept line breaks in constructor initializers"))[static_cast<std::size_t>(colon)];
    return line.find("name_long_part") == std::string::npos ? std::string() : "{BreakConstructorInitializers: BeforeComma}";
}

std::vector<std::string> short_lines_read_from(forms_by_name const& forms) {
    std::vector<std::string> readings;
    if (forms.find("short if"))
        readings.push_back(std::string("{AllowShortIfStatementsOnASingleLine: ") + short_ifs_read_from(forms) + "}");
    if (forms.find("short loop"))
        readings.push_back("{AllowShortLoopsOnASingleLine: " + flag(forms.has_one_line("short loop")) + "}");
    if (forms.find("enum"))
        readings.push_back("{AllowShortEnumsOnASingleLine: " + flag(forms.has_one_line("enum")) + "}");
    if (forms.find("if"))
        readings.push_back(std::string("{AllowShortBlocksOnASingleLine: ") +
                           (forms.has_one_line("if") ? "Always}" : "Never}"));
    if (forms.find("empty function"))
        readings.push_back("{SpaceInEmptyBlock: " + flag(forms.contains("empty function", "{ }")) + "}");
    std::string const functions = short_functions_read_from(forms);
    if (!functions.empty())
        readings.push_back(functions);
    return readings;
}

// A short call, or a short condition, its author wrote over two lines: joined under any column
// limit, kept where there is none (some ways of breaking after a `(` join a call under no limit
// too, none joins the condition).
bool keeps_line_breaks(forms_by_name const& forms) {
    std::string const* call = forms.find("kept line break");
    if (call && call->find('\n') != std::string::npos)
        return true;
    int const head = forms.line_starting("kept line break in a condition", "if");
    std::string const* condition = forms.find("kept line break in a condition");
    return head >= 0 && lines_of(*condition)[static_cast<std::size_t>(head)].find(')') == std::string::npos;
}

// Without a column limit a call its author wrote over two lines, its arguments packed, stays so
// where arguments are packed; not packed, the engine joins them all, having no line to break
// them at. Read where a short call inside a function keeps its break too, so that the way the
// style breaks after a `(` joins no call.
std::string packed_arguments_read_from(forms_by_name const& forms) {
    if (!keeps_line_breaks(forms))
        return std::string();
    auto const broken = [&](std::string const& structure, std::string const& opening) {
        int const line = forms.line_starting(structure, opening);
        return line >= 0 && lines_of(*forms.find(structure))[static_cast<std::size_t>(line)].find(");") == std::string::npos;
    };
    if (!broken("kept line break in a function", "name_long_part") ||
        forms.line_starting("long call in a function", "name_part") < 0)
        return std::string();
    return "{BinPackArguments: " + flag(broken("long call in a function", "name_part")) + "}";
}

// Without a column limit the engine keeps a call's arguments on the lines its author wrote them on
// where it packs them, and where it does not, it keeps them one a line as well: the call whose
// author packed two of its three arguments on a line shows which. Taken apart, one a line, the
// arguments show a style that does not pack them nor put them all on the next line; together on
// one line after the `(`, one that does not pack them but puts them all on the next line.
std::string arguments_apart_read_from(forms_by_name const& forms) {
    std::string const* call = forms.find("kept line breaks in arguments");
    int const head = forms.line_starting("kept line breaks in arguments", "name_part");
    if (!call || head < 0)
        return std::string();
    bool const broken_after_parenthesis =
        lines_of(*call)[static_cast<std::size_t>(head)].find("SOME") == std::string::npos;
    int arguments_on_lines = 0;
    bool all_together = false;
    for (std::string const& line : lines_of(*call)) {
        std::size_t count = 0;
        for (std::size_t at = line.find("SOME"); at != std::string::npos; at = line.find("SOME", at + 1))
            ++count;
        arguments_on_lines += count > 0;
        all_together = all_together || count == 3;
    }
    if (all_together && broken_after_parenthesis)
        return "{BinPackArguments: false, AllowAllArgumentsOnNextLine: true}";
    if (arguments_on_lines == 3)
        return "{BinPackArguments: false, AllowAllArgumentsOnNextLine: false}";
    return std::string();
}

// Without a column limit a short call its author broke after an argument stays so where the
// style lines arguments up after the `(` or does not, and is joined where the style breaks right
// after the `(` (it keeps only breaks there). A declaration's call kept broken after its `(`
// shows that there is no limit; the short call joined beside it then shows a break after the `(`
// that no fixed point of the other values tells apart (a joined call comes back under each).
std::string bracket_break_read_from(forms_by_name const& forms) {
    std::string const* call = forms.find("kept line break");
    std::string const* declaration = forms.find("kept line break in a declaration");
    if (!call || !declaration || call->find('\n') != std::string::npos)
        return std::string();
    for (std::string const& line : lines_of(*declaration)) {
        std::string const text = trimmed(line);
        if (!text.empty() && text.back() == '(')
            return "{AlignAfterOpenBracket: AlwaysBreak}";
    }
    return std::string();
}

// Without a column limit a declaration its author broke after a comma between its packed
// parameters stays so where parameters are packed, and is joined where they go one a line
// (having no line to break them at). Read where the short call keeps its break too, so that the
// style has no limit and its way of breaking after a `(` joins nothing.
std::string packed_parameters_read_from(forms_by_name const& forms) {
    std::string const* call = forms.find("kept line break");
    std::string const* declaration = forms.find("kept line break in parameters");
    if (!call || !declaration || call->find('\n') == std::string::npos)
        return std::string();
    bool broken = false;
    for (std::string const& line : lines_of(*declaration)) {
        std::string const text = trimmed(line);
        broken = broken || (!text.empty() && text.back() == ',');
    }
    return "{BinPackParameters: " + flag(broken) + "}";
}

// Strings written in parts: a line that ends before the first part (its `=` or `(` line, the
// part starting the next) is a break before strings in parts. Without a column limit the author's
// layout stays under either value, so this reading decides between them.
std::string multiline_strings_read_from(forms_by_name const& forms) {
    std::string const* code = forms.find("multiline string");
    if (!code)
        return std::string();
    std::vector<std::string> const lines = lines_of(*code);
    bool broken = false;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        broken = broken || (trimmed(lines[i]).find('"') == std::string::npos && starts_with(trimmed(lines[i + 1]), "\""));
    return "{AlwaysBreakBeforeMultilineStrings: " + flag(broken) + "}";
}

// Two trailing comments their author set none and one blank away: kept so, comments stay where
// they stand; in one column, they line up; each as far from its code, they are set the style's
// distance away.
std::string trailing_comments_read_from(forms_by_name const& forms, int tab_width) {
    std::string const* code = forms.find("comment spacing");
    if (!code)
        return std::string();
    std::vector<int> columns, gaps;
    for (std::string const& line : lines_of(*code)) {
        std::size_t const comment = line.find("//");
        if (comment == std::string::npos || comment == 0)
            continue;
        std::size_t const code_end = line.find_last_not_of(" \t", comment - 1);
        int const column = columns_of(line.substr(0, comment), tab_width);
        columns.push_back(column);
        gaps.push_back(code_end == std::string::npos ? -1
                                                     : column - columns_of(line.substr(0, code_end + 1), tab_width));
    }
    if (columns.size() != 2)
        return std::string();
    char const* kind = columns[0] == columns[1] ? "Always" : gaps[0] == gaps[1] ? "Never" : "Leave";
    return std::string("{AlignTrailingComments: {Kind: ") + kind + "}}";
}

// Backslashes lined up at the column limit show it exactly; otherwise, the narrowest limit of the
// table that every line of every form fits in, or none when the longest line passes them all (a
// comment on a line of its own is never broken, and passes any limit).
std::string column_limit_read_from(std::vector<form_case> const& forms) {
    // A short call written over two lines is joined under any limit; kept, there is none.
    if (keeps_line_breaks(forms_by_name(forms)))
        return "{ColumnLimit: 0}";
    int const tab_width = tab_width_read_from(forms);
    std::size_t longest = 0;
    std::set<int> backslash_columns;
    for (form_case const& form : forms)
        for (std::string const& line : lines_of(form.code)) {
            if (!starts_with(trimmed(line), "//"))
                longest = std::max(longest, static_cast<std::size_t>(columns_of(line, tab_width)));
            if (form.structure == "macro" && !line.empty() && line.back() == '\\')
                backslash_columns.insert(columns_of(line, tab_width));
        }
    if (backslash_columns.size() == 1)
        for (int limit : {79, 80, 100, 120})
            if (*backslash_columns.begin() == limit)
                return "{ColumnLimit: " + std::to_string(limit) + ", AlignEscapedNewlines: Right}";
    for (int limit : {80, 100, 120})
        if (longest <= static_cast<std::size_t>(limit))
            return "{ColumnLimit: " + std::to_string(limit) + "}";
    return "{ColumnLimit: 0}";
}

// The most blank lines in a row the forms keep, and whether a block begins with one. The engine
// keeps blank lines and never adds one, so a form with fewer comes back under a larger limit too:
// only this reading tells the values apart.
std::string blank_lines_read_from(forms_by_name const& forms) {
    std::string const* code = forms.find("blank lines");
    if (!code)
        return std::string();
    std::vector<std::string> const lines = lines_of(*code);
    int most = 0;
    // The form of more blank lines in a row shows a larger limit where the first form's two are kept.
    std::string const* more = forms.find("blank lines in a row");
    for (std::vector<std::string> const& each : {lines, more ? lines_of(*more) : std::vector<std::string>()}) {
        int run = 0;
        for (std::string const& line : each) {
            run = trimmed(line).empty() ? run + 1 : 0;
            most = std::max(most, run);
        }
    }
    std::string reading = "{MaxEmptyLinesToKeep: " + std::to_string(most);
    auto const opening = std::find_if(lines.begin(), lines.end(), [](std::string const& line) {
        std::string const text = trimmed(line);
        return !text.empty() && text.back() == '{';
    });
    if (most > 0 && opening != lines.end())
        reading += ", KeepEmptyLines: {AtStartOfBlock: " +
                   flag(opening + 1 != lines.end() && trimmed(*(opening + 1)).empty()) + "}";
    return reading + "}";
}

// A short block may share the line of its `if`; the loops and the long condition still show where
// the brace of a control statement goes (2: only after a condition over several lines).
int control_brace_read_from(forms_by_name const& forms) {
    int own_line = -1;
    for (char const* structure : {"if", "for", "while"})
        own_line = std::max(own_line, forms.brace_on_own_line(structure));
    if (own_line == 0 && (forms.brace_on_own_line("long condition") == 1 ||
                          forms.brace_on_own_line("kept line break in a condition") == 1))
        return 2;
    return own_line;
}

std::string braces_read_from(forms_by_name const& forms) {
    std::vector<std::pair<std::string, int>> const flags = {
        {"AfterFunction", forms.brace_on_own_line("function definition")},
        {"AfterControlStatement", control_brace_read_from(forms)},
        {"AfterClass", forms.brace_on_own_line("class")},
        {"AfterStruct", forms.brace_on_own_line("struct")},
        {"AfterUnion", forms.brace_on_own_line("union")},
        // A short enumeration may stand on one line whatever its brace does; a long one shows it.
        {"AfterEnum", forms.find("long enum") ? forms.brace_on_own_line("long enum") : forms.brace_on_own_line("enum")},
        {"AfterNamespace", forms.brace_on_own_line("namespace")},
        {"AfterExternBlock", forms.brace_on_own_line("extern block")},
        {"AfterCaseLabel", forms.brace_on_own_line("switch", "case SOME")},
        {"BeforeElse", forms.keyword_begins_line("if else", "else")},
        {"BeforeCatch", forms.keyword_begins_line("try catch", "catch")},
        {"BeforeWhile", forms.keyword_begins_line("do while", "while")},
        {"BeforeLambdaBody", forms.brace_on_own_line("lambda", "name_part(")},
    };
    std::string wrapping;
    for (auto const& [name, value] : flags) {
        if (value < 0)
            continue;
        wrapping += (wrapping.empty() ? "" : ", ") + name + ": " +
                    (name == "AfterControlStatement" ? (value == 2 ? "MultiLine" : value ? "Always" : "Never")
                                                     : flag(value == 1));
    }
    // An empty body under a brace of its own line: closed on the same line or on the next.
    for (auto const& [name, structure] : {std::pair<char const*, char const*>{"SplitEmptyFunction", "empty function"},
                                          std::pair<char const*, char const*>{"SplitEmptyRecord", "empty class"}}) {
        std::string const* code = forms.find(structure);
        if (code && forms.brace_on_own_line(structure) == 1)
            wrapping += std::string(wrapping.empty() ? "" : ", ") + name + ": " +
                        flag(code->find('}') > code->find('\n', code->find('{')));
    }
    // Indented braces: the opening one on a line of its own further in than its statement, or else
    // the closing one.
    int const statement = forms.line_starting("if", "if");
    int brace = forms.line_starting("if", "{");
    if (brace < 0)
        brace = forms.line_starting("if", "}");
    if (statement >= 0 && brace >= 0)
        wrapping += std::string(wrapping.empty() ? "" : ", ") + "IndentBraces: " +
                    flag(forms.indent_of_line("if", brace) > forms.indent_of_line("if", statement) ||
                         attached_braces_indented(forms));
    return wrapping.empty() ? wrapping : "{BreakBeforeBraces: Custom, BraceWrapping: {" + wrapping + "}}";
}

}  // namespace

form_readings readings_of(std::vector<form_case> const& forms) {
    forms_by_name const named(forms, tab_width_read_from(forms));
    form_readings readings;
    for (std::string const& reading :
         {indentation_read_from(forms), continuation_indent_read_from(forms), access_offset_read_from(named),
          return_type_read_from(named), case_labels_read_from(named), directives_read_from(named),
          namespace_indentation_read_from(named), parentheses_read_from(named), pointers_read_from(named),
          column_limit_read_from(forms), packed_arguments_read_from(named), packed_parameters_read_from(named)})
        if (!reading.empty())
            readings.layout.push_back(reading);
    for (std::string const& reading : short_lines_read_from(named))
        readings.layout.push_back(reading);
    std::string const limit = column_limit_read_from(forms);
    if (limit.find("AlignEscapedNewlines") != std::string::npos)
        readings.certain.push_back(limit);
    // A short call kept over two lines shows no limit for certain (joined, it shows nothing: some
    // ways of breaking after a `(` join it under no limit too).
    bool const kept_breaks = keeps_line_breaks(named);
    if (kept_breaks)
        readings.certain.push_back("{ColumnLimit: 0}");
    // Without a limit the engine keeps a call on the line it was written on, as in the catalogue
    // (Java's and C#'s long method call too).
    std::string const* call = named.find("long function call");
    if (!call)
        call = named.find("long method call");
    if (!kept_breaks && call && call->find('\n') != std::string::npos)
        readings.ruled_out.push_back("{ColumnLimit: 0}");
    if (named.find("pointer") && named.find("mixed pointers"))
        readings.telling.push_back(std::string("{DerivePointerAlignment: ") +
                                   (pointers_read_from(named).find("DerivePointerAlignment: true") != std::string::npos
                                        ? "true}"
                                        : "false}"));
    readings.braces = braces_read_from(named);
    if (!readings.braces.empty())
        readings.preferred.push_back(readings.braces);
    // Without a limit the engine keeps a return type on the line its author put it on, so styles
    // that break only where the line is too long give the broken forms back too.
    std::string const return_type = return_type_read_from(named);
    if (!return_type.empty() && return_type.find("BreakAfterReturnType: None") == std::string::npos)
        readings.preferred.push_back(return_type);
    // Without a limit the engine keeps a short function on the lines its author wrote it on, so
    // styles that join every short function give the broken ones back too (and a source's
    // functions written on one line stay so under them): a predefined one among them too.
    std::string const functions = short_functions_read_from(named);
    if (!functions.empty() && functions.find("All}") == std::string::npos) {
        readings.preferred.push_back(functions);
        readings.telling.push_back(functions);
    }
    std::string const arguments = arguments_apart_read_from(named);
    if (!arguments.empty())
        readings.preferred.push_back(arguments);
    for (std::string const& reading : {constructor_packing_read_from(named), constructor_commas_read_from(named)})
        if (!reading.empty())
            readings.preferred.push_back(reading);
    std::string const bracket_break = bracket_break_read_from(named);
    if (!bracket_break.empty())
        readings.preferred.push_back(bracket_break);
    std::string const strings = multiline_strings_read_from(named);
    if (!strings.empty())
        readings.preferred.push_back(strings);
    std::string const comments = trailing_comments_read_from(named, tab_width_read_from(forms));
    if (!comments.empty())
        readings.preferred.push_back(comments);
    std::string const blank_lines = blank_lines_read_from(named);
    if (!blank_lines.empty())
        readings.passed.push_back(blank_lines);
    // No option group moves the qualifiers' blanks: the reading is taken as it stands.
    std::string const qualifiers = pointer_qualifiers_read_from(named);
    if (!qualifiers.empty())
        readings.passed.push_back(qualifiers);
    for (macro_kind const& kind : macro_kinds())
        if (std::string const* macros = named.find(kind.structure))
            readings.passed.push_back(macros_option_for(kind, macros_named_in(kind, *macros)));
    return readings;
}

}  // namespace tarnel_engine
