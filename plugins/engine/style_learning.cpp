// Sample, readings, search, addon, fixed points, the candidates weighed (the rules learned and the
// starts), count: each step bounded by the sample or by a fixed share of the sources, not by the
// size of the project, except the last count, which revises every source once.
#include "style_learning.h"

#include "bracket_balance.h"
#include "code_sample.h"
#include "conditional_passes.h"
#include "form_readings.h"
#include "addon_forms.h"
#include "inference_cache.h"
#include "engine_limits.h"
#include "form_conflicts.h"
#include "project_macros.h"
#include "text_columns.h"
#include "text_lines.h"
#include "option_inference.h"
#include "revision.h"
#include "white_space.h"

#include <clang/Format/Format.h>

#include <algorithm>
#include <cctype>
#include <atomic>
#include <chrono>
#include <future>
#include <map>
#include <regex>
#include <set>
#include <thread>

namespace tarnel_engine {

namespace {

// The forms the search may format, in pieces of the sample: about 20 s on one core for a sample of
// 2,400 lines (bench/learning), leaving time to revise 400 files for the count.
long const formatting_budget = 20000;
// Rewrites of the addon with the forms as they come back, until every form is a fixed point.
int const rounds_to_fixed_points = 3;
// The sources on which the candidates (the rules learned and the starts, each with its limit and
// with the author's own line breaks kept) are weighed against each other, every k-th of them: a
// fair share of any project, at a quarter of the count's cost on 400 files for each candidate.
std::size_t const sources_weighed = 100;
// The starts' candidates weighed on all those sources, the best of them screened on every k-th of
// a quarter as many.
std::size_t const starts_weighed_in_full = 2;
std::size_t const sources_screened = 25;
// The lines the engine may read in all its passes over one source (conditional_passes.h): a 10,000
// line file read a hundred times, a few seconds and a few hundred megabytes.
unsigned long const most_lines_read = 1000000;

bool ends_with(std::string const& text, std::string const& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// Traits as the host gives them for 8-bit text: the first line break, and a blank.
line_ending_traits traits_of_8_bit(std::string const& source) {
    std::size_t const at = source.find_first_of("\r\n");
    if (at == std::string::npos)
        return {};
    if (source[at] == '\n')
        return {"\n", " "};
    return {at + 1 < source.size() && source[at + 1] == '\n' ? "\r\n" : "\r", " "};
}

// The smallest usual limit that nearly every line fits in (a few long strings and URLs go over any
// limit), or none; with the width of a tab (0 when no line begins with one): the width the code
// shows where tabs and blanks line up (form_readings.h), or where none does (code indented with
// tabs alone, its continuation lines lined up with the same tabs), the width under which nearly
// all lines come closest to that limit.
struct column_reading {
    std::string limit;
    int tab_width = 0;
};

column_reading column_limit_read_from(std::vector<std::string> const& pieces) {
    bool tabs = false;
    for (std::string const& piece : pieces)
        tabs = tabs || piece[0] == '\t' || piece.find("\n\t") != std::string::npos;
    int const shown = tabs ? tab_width_shown_by(pieces) : 8;
    column_reading best;
    std::size_t best_slack = 0;
    for (int tab_width : {8, 4, 2}) {
        if (shown && tab_width != shown)
            continue;
        std::vector<std::size_t> widths;
        for (std::string const& piece : pieces)
            for (std::string const& line : lines_of(piece)) {
                std::size_t width = 0;
                for (char c : line)
                    width += c == '\t' ? tab_width - width % tab_width : 1;
                if (width > 0)
                    widths.push_back(width);
            }
        if (widths.empty())
            return best;
        std::sort(widths.begin(), widths.end());
        std::size_t const nearly_all = widths[(widths.size() - 1) * 995 / 1000];
        column_reading reading{"{ColumnLimit: 0}", tabs ? tab_width : 0};
        std::size_t slack = 1000;
        for (int limit : {80, 100, 120})
            if (nearly_all <= static_cast<std::size_t>(limit)) {
                reading.limit = "{ColumnLimit: " + std::to_string(limit) + "}";
                slack = static_cast<std::size_t>(limit) - nearly_all;
                break;
            }
        if (best.limit.empty() || slack < best_slack) {
            best = reading;
            best_slack = slack;
        }
    }
    return best;
}

// The side `*` and `&` lean to in declarations, where one side clearly outnumbers the other; or,
// where each piece leans its own way and the pieces do not agree (a project whose files follow
// their own leaning, as a style that derives it writes them), the leaning derived from each file.
std::string pointers_read_from(std::vector<std::string> const& pieces) {
    static std::regex const left(R"([A-Za-z0-9_>][*&]+ [A-Za-z_])");
    static std::regex const right(R"([A-Za-z0-9_>] [*&]+[A-Za-z_])");
    long lean_left = 0;
    long lean_right = 0;
    long pieces_left = 0;
    long pieces_right = 0;
    long with_their_piece = 0;  // leanings that agree with their own piece's majority
    for (std::string const& piece : pieces) {
        long piece_left = 0;
        long piece_right = 0;
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            if (starts_with(text, "//") || starts_with(text, "*") || starts_with(text, "/*") || starts_with(text, "#"))
                continue;
            piece_left += std::distance(std::sregex_iterator(text.begin(), text.end(), left), std::sregex_iterator());
            piece_right += std::distance(std::sregex_iterator(text.begin(), text.end(), right), std::sregex_iterator());
        }
        lean_left += piece_left;
        lean_right += piece_right;
        pieces_left += piece_left > piece_right;
        pieces_right += piece_right > piece_left;
        with_their_piece += std::max(piece_left, piece_right);
    }
    char const* const majority = lean_left >= lean_right ? "Left" : "Right";
    long const minority_pieces = std::min(pieces_left, pieces_right);
    if (minority_pieces >= 2 && minority_pieces * 5 >= pieces_left + pieces_right &&
        with_their_piece * 10 >= (lean_left + lean_right) * 9)
        return std::string("{DerivePointerAlignment: true, PointerAlignment: ") + majority +
               ", ReferenceAlignment: Pointer}";
    if (lean_left > 2 * lean_right && lean_left >= 3)
        return "{DerivePointerAlignment: false, PointerAlignment: Left, ReferenceAlignment: Pointer}";
    if (lean_right > 2 * lean_left && lean_right >= 3)
        return "{DerivePointerAlignment: false, PointerAlignment: Right, ReferenceAlignment: Pointer}";
    return std::string();
}

// Per construct, whether the opening brace mostly stands on a line of its own; constructs the
// sample does not show are left to the search.
std::string braces_read_from(std::vector<std::string> const& pieces) {
    // Construct -> lines with the brace at the end of the head, lines with it alone after the head.
    std::map<std::string, std::pair<long, long>> seen;
    auto construct_of = [](std::string const& head, bool at_top) -> std::string {
        for (char const* keyword : {"if ", "if(", "for ", "for(", "while ", "while(", "switch ", "switch("})
            if (starts_with(head, keyword))
                return "AfterControlStatement";
        if (starts_with(head, "class ") || starts_with(head, "template"))
            return "AfterClass";
        if (starts_with(head, "struct "))
            return "AfterStruct";
        if (starts_with(head, "enum "))
            return "AfterEnum";
        if (starts_with(head, "union "))
            return "AfterUnion";
        if (starts_with(head, "namespace "))
            return "AfterNamespace";
        if (at_top && ends_with(head, ")"))
            return "AfterFunction";
        return std::string();
    };
    for (std::string const& piece : pieces) {
        std::vector<std::string> const lines = lines_of(piece);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            bool const at_top = !lines[i].empty() && lines[i][0] != ' ' && lines[i][0] != '\t';
            if (text == "{" && i > 0) {
                std::string const construct = construct_of(trimmed(lines[i - 1]), lines[i - 1].find_first_not_of(" \t") == 0);
                if (!construct.empty())
                    ++seen[construct].second;
            } else if (ends_with(text, " {") || ends_with(text, "){")) {
                std::string const head = trimmed(text.substr(0, text.size() - 1));
                std::string const construct = construct_of(head, at_top);
                if (!construct.empty())
                    ++seen[construct].first;
            }
            if (starts_with(text, "} else"))
                ++seen["BeforeElse"].first;
            else if (starts_with(text, "else") && i > 0 && trimmed(lines[i - 1]) == "}")
                ++seen["BeforeElse"].second;
        }
    }
    std::string wrapping;
    for (auto const& [name, counts] : seen) {
        if (counts.first + counts.second < 2)
            continue;
        bool const own_line = counts.second > counts.first;
        std::string const value = name == "AfterControlStatement" ? (own_line ? "Always" : "Never") : own_line ? "true" : "false";
        wrapping += (wrapping.empty() ? "" : ", ") + name + ": " + value;
    }
    return wrapping.empty() ? wrapping : "{BreakBeforeBraces: Custom, BraceWrapping: {" + wrapping + "}}";
}

// Whether the first declaration inside a namespace stands further in than the namespace, where one
// way clearly outnumbers the other.
std::string namespace_indentation_read_from(std::vector<std::string> const& pieces) {
    long indented = 0;
    long flush = 0;
    for (std::string const& piece : pieces) {
        std::vector<std::string> const lines = lines_of(piece);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            bool const head = starts_with(text, "namespace") || starts_with(text, "inline namespace");
            if (!head || (!ends_with(text, "{") && (i + 1 == lines.size() || trimmed(lines[i + 1]) != "{")))
                continue;
            std::size_t const opener = ends_with(text, "{") ? i : i + 1;
            for (std::size_t next = opener + 1; next < lines.size(); ++next) {
                std::string const inside = trimmed(lines[next]);
                if (inside.empty() || inside[0] == '#' || starts_with(inside, "//") || starts_with(inside, "/*") ||
                    starts_with(inside, "*") || starts_with(inside, "namespace"))
                    continue;
                bool const further = lines[next].find_first_not_of(" \t") > lines[i].find_first_not_of(" \t");
                (further ? indented : flush) += 1;
                break;
            }
        }
    }
    if (indented > 2 * flush && indented >= 2)
        return "{NamespaceIndentation: All}";
    if (flush > 2 * indented && flush >= 2)
        return "{NamespaceIndentation: None}";
    return std::string();
}

// The columns a line's indentation takes, tabs counted `tab_width` wide.
std::size_t indentation_of(std::string const& line, int tab_width) {
    return static_cast<std::size_t>(indentation_columns_of(line, tab_width));
}

bool comment_or_directive(std::string const& text) {
    return starts_with(text, "//") || starts_with(text, "*") || starts_with(text, "/*") || starts_with(text, "#");
}

// The value seen most, where it clearly outnumbers all the others together and is seen at least
// `fewest` times; -1 otherwise.
long clear_majority_of(std::map<long, long> const& seen, long fewest) {
    long total = 0;
    std::pair<long, long> most{-1, 0};
    for (auto const& [value, times] : seen) {
        total += times;
        if (times > most.second)
            most = {value, times};
    }
    return most.second >= fewest && most.second > 2 * (total - most.second) ? most.first : -1;
}

// The value seen most, where no other is seen as often; -1 otherwise.
long most_seen_of(std::map<long, long> const& seen) {
    std::pair<long, long> most{-1, 0};
    bool tied = false;
    for (auto const& [value, times] : seen) {
        tied = times == most.second || (tied && times < most.second);
        if (times > most.second)
            most = {value, times};
    }
    return tied ? -1 : most.first;
}

// How much further in than its statement a line goes after a break behind an opening parenthesis
// or an assignment, where one step clearly outnumbers the others.
std::string continuation_indent_read_from(std::vector<std::string> const& pieces, int tab_width) {
    std::map<long, long> steps;
    for (std::string const& piece : pieces) {
        std::vector<std::string> const lines = lines_of(piece);
        for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            if (text.empty() || comment_or_directive(text) || ends_with(text, "\\"))
                continue;
            bool const assignment = ends_with(text, " =") && !ends_with(text, "==") && !ends_with(text, "!=") &&
                                    !ends_with(text, "<=") && !ends_with(text, ">=");
            if (!ends_with(text, "(") && !assignment)
                continue;
            std::string const next = trimmed(lines[i + 1]);
            if (next.empty() || comment_or_directive(next))
                continue;
            std::size_t const here = indentation_of(lines[i], tab_width);
            std::size_t const there = indentation_of(lines[i + 1], tab_width);
            if (there > here)
                ++steps[static_cast<long>(there - here)];
        }
    }
    long const step = clear_majority_of(steps, 3);
    return step > 0 ? "{ContinuationIndentWidth: " + std::to_string(step) + "}" : std::string();
}

// In code indented with tabs, whether a line continuing an open parenthesis takes tabs beyond its
// statement's own (`\t\t\t       int flags)` under `\tint f(...,`) or blanks after them, where one
// way clearly outnumbers the other; only lines at least a tab further in than their statement say.
std::string continuation_tabs_read_from(std::vector<std::string> const& pieces, int tab_width) {
    std::map<long, long> tabbed;
    for (std::string const& piece : pieces) {
        std::vector<std::string> const lines = lines_of(piece);
        for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            if (text.empty() || comment_or_directive(text) || ends_with(text, "\\") ||
                text.find('"') != std::string::npos ||
                std::count(text.begin(), text.end(), '(') <= std::count(text.begin(), text.end(), ')'))
                continue;
            std::size_t const tabs = lines[i].find_first_not_of('\t');
            std::size_t const next_tabs = lines[i + 1].find_first_not_of('\t');
            if (tabs == std::string::npos || next_tabs == std::string::npos || lines[i][tabs] != text[0] ||
                trimmed(lines[i + 1]).empty() || comment_or_directive(trimmed(lines[i + 1])))
                continue;
            std::size_t const further = indentation_of(lines[i + 1], tab_width);
            if (further < indentation_of(lines[i], tab_width) + static_cast<std::size_t>(tab_width))
                continue;
            if (next_tabs > tabs)
                ++tabbed[1];
            else if (next_tabs == tabs)
                ++tabbed[0];
        }
    }
    long const way = clear_majority_of(tabbed, 3);
    return way < 0 ? std::string() : way ? "{UseTab: ForContinuationAndIndentation}" : "{UseTab: ForIndentation}";
}

// Whether the backslashes that continue a macro's lines stand one blank after each line's code or
// line up in one column (tabs `tab_width` wide, as the code shows them), where one way clearly
// outnumbers the other: a run of continued lines of different lengths counts once (runs lined up
// neither way say nothing). Only the first way is a rule of its own (lined up, the search chooses
// which column).
std::string escaped_newlines_read_from(std::vector<std::string> const& pieces, int tab_width) {
    std::map<long, long> aligned;
    for (std::string const& piece : pieces) {
        std::set<int> columns;
        std::set<std::size_t> lengths;
        bool one_blank = true;
        auto const run_ends = [&] {
            if (lengths.size() >= 2 && (one_blank || columns.size() == 1))
                ++aligned[one_blank ? 0 : 1];
            columns.clear();
            lengths.clear();
            one_blank = true;
        };
        for (std::string const& line : lines_of(piece)) {
            bool const continued = line.size() >= 2 && line.back() == '\\';
            std::size_t const code_end = continued ? line.find_last_not_of(" \t", line.size() - 2) : std::string::npos;
            if (code_end == std::string::npos) {
                run_ends();
                continue;
            }
            columns.insert(columns_of(std::string_view(line).substr(0, line.size() - 1), tab_width));
            lengths.insert(code_end + 1);
            one_blank = one_blank && line.size() - code_end == 3 && line[code_end + 1] == ' ';
        }
        run_ends();
    }
    return clear_majority_of(aligned, 3) == 0 ? "{AlignEscapedNewlines: DontAlign}" : std::string();
}

// Braced lists with a blank inside their braces (`{ 1, 2 }`, `{ "name",` opening a line): laid out
// as blocks, where files that mostly write them so clearly outnumber files that mostly write them
// without (`{1, 2}`; a table of numbers in one file says little of a project). The other way is
// no rule of its own: the engine then lays lists out as a call's arguments, which also decides
// how lists of many lines are indented, and the search weighs that. Strings, comments, blocks of
// statements, enums and empty braces say nothing.
std::string braced_lists_read_from(std::vector<std::string> const& pieces) {
    std::map<long, long> files;
    for (std::string const& piece : pieces) {
        long spaced = 0;
        long tight = 0;
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            if (text.empty() || comment_or_directive(text) || text.find('{') == std::string::npos ||
                text.find("enum") != std::string::npos)
                continue;
            // The code with the insides of its strings and characters left out, up to a comment.
            std::string code;
            for (std::size_t i = 0; i < text.size(); ++i) {
                char const c = text[i];
                if (c == '/' && i + 1 < text.size() && (text[i + 1] == '/' || text[i + 1] == '*'))
                    break;
                code += c;
                if (c != '"' && c != '\'')
                    continue;
                for (++i; i < text.size() && text[i] != c; ++i)
                    i += text[i] == '\\' ? 1 : 0;
                code += c;
            }
            code = trimmed(code);
            for (std::size_t open = code.find('{'); open != std::string::npos; open = code.find('{', open + 1)) {
                std::size_t const end = code.find_first_of("{};", open + 1);
                bool const closed = end != std::string::npos && code[end] == '}';
                // A list on the line (`{ 1, 2 }`), or one that opens the line and goes on (`{ "name",`).
                if (closed && end > open + 1) {
                    bool const blank_in = code[open + 1] == ' ' && code[end - 1] == ' ';
                    bool const none_in = code[open + 1] != ' ' && code[end - 1] != ' ';
                    spaced += blank_in && end > open + 2;
                    tight += none_in;
                } else if (open == 0 && end == std::string::npos && code.size() > 2) {
                    (code[1] == ' ' ? spaced : tight) += 1;
                }
            }
        }
        if (spaced > 2 * tight)
            ++files[1];
        else if (tight > 2 * spaced)
            ++files[0];
    }
    return clear_majority_of(files, 3) == 1 ? "{Cpp11BracedListStyle: false}" : std::string();
}

// Whether the names of the macros used as loops stand close to their parentheses
// (`for_each_item(item, list) {`) where `if`, `for` and `while` stand a blank away, each way
// clearly outnumbering the other.
std::string loop_macro_parentheses_read_from(std::vector<std::string> const& pieces) {
    std::vector<std::string> const macros = loop_macros().used_in(pieces);
    if (macros.empty())
        return std::string();
    std::map<long, long> keyword_blank;
    std::map<long, long> macro_blank;
    for (std::string const& piece : pieces)
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            for (char const* keyword : {"if", "for", "while"})
                if (starts_with(text, std::string(keyword) + " (") || starts_with(text, std::string(keyword) + "("))
                    ++keyword_blank[text[std::string(keyword).size()] == ' '];
            for (std::string const& macro : macros)
                if (starts_with(text, macro + " (") || starts_with(text, macro + "("))
                    ++macro_blank[text[macro.size()] == ' '];
        }
    return clear_majority_of(keyword_blank, 3) == 1 && clear_majority_of(macro_blank, 3) == 0
               ? "{SpaceBeforeParens: ControlStatementsExceptControlMacros}"
               : std::string();
}

// The most blank lines in a row that the code keeps in at least three places (outside block
// comments), up to four: keeping fewer joins them.
std::string blank_lines_read_from(std::vector<std::string> const& pieces) {
    std::map<long, long> runs;
    for (std::string const& piece : pieces) {
        bool in_comment = false;
        long blanks = 0;
        bool code_before = false;
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            if (text.empty() && !in_comment) {
                ++blanks;
                continue;
            }
            if (code_before && blanks > 0)
                ++runs[std::min(blanks, 4L)];
            blanks = 0;
            code_before = true;
            std::size_t const opened = text.rfind("/*");
            if (opened != std::string::npos && text.find("*/", opened) == std::string::npos)
                in_comment = true;
            else if (in_comment && text.find("*/") != std::string::npos)
                in_comment = false;
        }
    }
    long most = 0;
    for (auto const& [blanks, times] : runs)
        if (times >= 3)
            most = blanks;
    return most > 0 ? "{MaxEmptyLinesToKeep: " + std::to_string(most) + "}" : std::string();
}

// Whether a label (`out:`) inside a nested block stands at the start of its line or further in,
// where one way clearly outnumbers the other (in a function's own block both ways put it first).
std::string goto_labels_read_from(std::vector<std::string> const& pieces) {
    std::map<long, long> indented;
    for (std::string const& piece : pieces) {
        int depth = 0;
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            bool label = text.size() > 1 && text.back() == ':' && depth > 1 && !comment_or_directive(text) &&
                         (std::isalpha(static_cast<unsigned char>(text[0])) || text[0] == '_');
            for (std::size_t i = 0; label && i + 1 < text.size(); ++i)
                label = std::isalnum(static_cast<unsigned char>(text[i])) || text[i] == '_';
            if (label && text != "default:" && text != "public:" && text != "private:" && text != "protected:")
                ++indented[line[0] == ' ' || line[0] == '\t'];
            if (!comment_or_directive(text))
                depth += static_cast<int>(std::count(text.begin(), text.end(), '{')) -
                         static_cast<int>(std::count(text.begin(), text.end(), '}'));
        }
    }
    long const way = clear_majority_of(indented, 3);
    return way < 0 ? std::string() : way ? "{IndentGotoLabels: true}" : "{IndentGotoLabels: false}";
}

// Whether the `case` labels of a switch stand further in than the switch, where one way clearly
// outnumbers the other.
std::string case_labels_read_from(std::vector<std::string> const& pieces, int tab_width) {
    std::map<long, long> indented;
    for (std::string const& piece : pieces) {
        std::vector<std::string> const lines = lines_of(piece);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            if (!starts_with(text, "switch ") && !starts_with(text, "switch("))
                continue;
            for (std::size_t next = i + 1; next < lines.size() && next <= i + 3; ++next) {
                std::string const inside = trimmed(lines[next]);
                if (!starts_with(inside, "case ") && !starts_with(inside, "default:") && !starts_with(inside, "default :"))
                    continue;
                ++indented[indentation_of(lines[next], tab_width) > indentation_of(lines[i], tab_width)];
                break;
            }
        }
    }
    long const way = clear_majority_of(indented, 2);
    return way < 0 ? std::string() : way ? "{IndentCaseLabels: true}" : "{IndentCaseLabels: false}";
}

// How much further in than a constructor's head its initializer list goes: the line that begins
// with the list's `:` under a head that ends with `)`, or the line after a head that ends with
// `) :`, measured from the line where the head's parentheses open (a head may take several
// lines). A ternary's `:` stands under a line with its `?`, an inheritance list's under a
// class's name, and a case label's `KIND(x):` ends a label, not a head. Files count, each by the
// step most of its lists take (one file may write a few lists its own way; a file split between
// two steps says nothing), where one step clearly outnumbers the others.
std::string constructor_initializers_read_from(std::vector<std::string> const& pieces, int tab_width) {
    std::map<long, long> files;
    for (std::string const& piece : pieces) {
        std::vector<std::string> const lines = lines_of(piece);
        std::map<long, long> steps;
        for (std::size_t i = 1; i < lines.size(); ++i) {
            std::string const text = trimmed(lines[i]);
            std::string const before = trimmed(lines[i - 1]);
            if (text.empty() || comment_or_directive(text) || before.find('?') != std::string::npos ||
                starts_with(before, "case "))
                continue;
            bool const colon_first = text[0] == ':' && (text.size() == 1 || text[1] != ':');
            std::string const head = ends_with(before, ":") ? trimmed(before.substr(0, before.size() - 1)) : before;
            bool const colon_last = head != before && !ends_with(head, ":") && ends_with(head, ")");
            if (!(colon_first && ends_with(before, ")")) && !colon_last)
                continue;
            // The line where the head's parentheses open.
            long open = 0;
            std::size_t at = i;
            while (at-- > 0) {
                open += static_cast<long>(std::count(lines[at].begin(), lines[at].end(), ')')) -
                        static_cast<long>(std::count(lines[at].begin(), lines[at].end(), '('));
                if (open <= 0)
                    break;
            }
            if (open != 0 || at >= i)
                continue;
            std::size_t const here = indentation_of(lines[at], tab_width);
            std::size_t const there = indentation_of(lines[i], tab_width);
            if (there > here)
                ++steps[static_cast<long>(there - here)];
        }
        long const most = most_seen_of(steps);
        if (most > 0)
            ++files[most];
    }
    long const step = clear_majority_of(files, 3);
    return step > 0 ? "{ConstructorInitializerIndentWidth: " + std::to_string(step) + "}" : std::string();
}

// The blanks between code and a `//` comment that ends its line, where one count clearly outnumbers
// the others: a run of such lines counts once, by its fewest blanks (the others may line their
// comments up with the longest line's).
std::string trailing_comment_blanks_read_from(std::vector<std::string> const& pieces) {
    std::map<long, long> blanks;
    for (std::string const& piece : pieces) {
        long fewest = -1;
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            std::size_t const at = text.find("//");
            long gap = -1;
            if (at != std::string::npos && at > 0 && !comment_or_directive(text) &&
                text.find_first_of("\"'") == std::string::npos && text.find("/*") == std::string::npos) {
                std::size_t const code_end = text.find_last_not_of(' ', at - 1);
                if (code_end != std::string::npos && text[code_end] != '\t')
                    gap = static_cast<long>(at - code_end - 1);
            }
            if (gap > 0) {
                fewest = fewest < 0 ? gap : std::min(fewest, gap);
                continue;
            }
            if (fewest > 0)
                ++blanks[fewest];
            fewest = -1;
        }
        if (fewest > 0)
            ++blanks[fewest];
    }
    long const count = clear_majority_of(blanks, 3);
    return count > 0 ? "{SpacesBeforeTrailingComments: " + std::to_string(count) + "}" : std::string();
}

// Under no limit the engine keeps the author's line breaks, and joins what the options let it join
// only where the author wrote it on one line: arguments and parameters packed keep a call or a
// declaration broken by hand as it is (one a line splits every argument or parameter of it), and
// ifs (with or without an else), case labels and functions joined with their statements are kept
// as written wherever the code shows a few. So these values leave at least as many lines as any
// other under no limit; a sample may show none of them, and the search then keeps whichever value
// it started from.
std::vector<std::string> rules_kept_under_no_limit(std::vector<std::string> const& sources) {
    long ifs_joined = 0;
    long cases_joined = 0;
    long functions_joined = 0;
    for (std::string const& source : sources)
        for (std::string const& line : lines_of(source)) {
            std::string const text = trimmed(line);
            // A function's head and body on one line: `int size() const { return size_; }`.
            std::size_t const body = text.find(") {");
            if (body != std::string::npos && text.back() == '}' && text.find('=') > body &&
                !comment_or_directive(text) && text.find(';', body) != std::string::npos) {
                bool control = false;
                for (char const* keyword : {"if", "for", "while", "switch", "else", "do", "}", "return", "case"})
                    control = control || starts_with(text, keyword);
                functions_joined += !control;
            }
            if (text.empty() || text.back() != ';' || comment_or_directive(text))
                continue;
            if (starts_with(text, "if (") || starts_with(text, "if(")) {
                // The condition closes before the line's end and a statement follows it.
                int depth = 0;
                std::size_t at = text.find('(');
                for (; at < text.size(); ++at) {
                    depth += text[at] == '(' ? 1 : text[at] == ')' ? -1 : 0;
                    if (depth == 0)
                        break;
                }
                std::string const rest = at < text.size() ? trimmed(text.substr(at + 1)) : std::string();
                ifs_joined += rest.size() > 1 && rest[0] != '{' && rest[0] != ';';
            } else if (starts_with(text, "case ") || starts_with(text, "default:")) {
                std::size_t const colon = text.find(": ");
                cases_joined += colon != std::string::npos && text.compare(colon, 3, ": {") != 0 &&
                                text.find("::") == std::string::npos;
            }
        }
    std::vector<std::string> rules = {"{BinPackArguments: true, BinPackParameters: true}"};
    if (ifs_joined >= 3)
        rules.push_back("{AllowShortIfStatementsOnASingleLine: AllIfsAndElse}");
    if (cases_joined >= 3)
        rules.push_back("{AllowShortCaseLabelsOnASingleLine: true}");
    if (functions_joined >= 3)
        rules.push_back("{AllowShortFunctionsOnASingleLine: All}");
    return rules;
}

// What the whole sources the sample was taken from show: the rules read from every one of them, the
// macros they use as loops, statements and attributes (a sample may hold few uses), each kind in
// the engine's configuration syntax, and the rules that keep the author's way under no limit.
struct read_from_every_source {
    std::vector<std::string> rules;
    std::vector<std::string> macros;
    std::vector<std::string> under_no_limit;
};

read_from_every_source read_from(std::vector<std::string> const& sources, int tab_width) {
    read_from_every_source read;
    read.rules = rules_read_from_every_source(sources, tab_width);
    read.under_no_limit = rules_kept_under_no_limit(sources);
    for (macro_kind const& kind : macro_kinds()) {
        std::vector<std::string> const macros = kind.used_in(sources);
        if (!macros.empty())
            read.macros.push_back(macros_option_for(kind, macros));
    }
    return read;
}

// `project` is what the whole sources show (above).
form_readings readings_of_code(std::vector<form_case> const& forms, std::vector<std::string> const& pieces,
                               read_from_every_source const& project) {
    form_readings readings = readings_of(forms);
    readings.layout.erase(std::remove_if(readings.layout.begin(), readings.layout.end(),
                                         [](std::string const& reading) {
                                             return reading.find("ColumnLimit") != std::string::npos;
                                         }),
                          readings.layout.end());
    readings.certain.clear();
    readings.ruled_out.clear();
    // Under no limit the engine keeps every line break as it finds it, which any sample favours, and
    // the forms of the addon would then show the catalogue's breaks rather than the project's: a
    // limit that nearly every line keeps to holds.
    column_reading const columns = column_limit_read_from(pieces);
    std::string const limit = columns.limit;
    if (!limit.empty() && limit != "{ColumnLimit: 0}")
        readings.certain.push_back(limit);
    std::string const tab_width = columns.tab_width ? "{TabWidth: " + std::to_string(columns.tab_width) + "}" : "";
    for (std::string const& reading :
         {limit, tab_width, pointers_read_from(pieces), namespace_indentation_read_from(pieces)})
        if (!reading.empty())
            readings.layout.push_back(reading);
    for (std::string const& reading : project.rules) {
        readings.layout.push_back(reading);
        readings.certain.push_back(reading);
    }
    readings.braces = braces_read_from(pieces);
    readings.passed.insert(readings.passed.end(), project.macros.begin(), project.macros.end());
    return readings;
}

// The options with each rule (in the engine's configuration syntax) applied in turn.
clang::format::FormatStyle with_these_rules(clang::format::FormatStyle options, std::vector<std::string> const& rules) {
    for (std::string const& rule : rules) {
        clang::format::FormatStyle ruled = options;
        auto const quiet = [](llvm::SMDiagnostic const&, void*) {};
        if (!clang::format::parseConfiguration(llvm::MemoryBufferRef(rule, "rule"), &ruled, false, quiet, nullptr))
            options = ruled;
    }
    return options;
}

// A start's options with the rules the project's code clearly shows and the macros it uses: a
// shipped style's own macros (the kernel's loops) and its own alignments say nothing of the project.
clang::format::FormatStyle with_rules_of(clang::format::FormatStyle options, read_from_every_source const& project) {
    options = with_these_rules(options, project.rules);
    return with_these_rules(options, project.macros);
}

// Options under no limit with the author's way kept (above); options under a limit as they are.
clang::format::FormatStyle with_the_authors_way_kept(clang::format::FormatStyle options,
                                                     read_from_every_source const& project) {
    return options.ColumnLimit == 0 ? with_these_rules(options, project.under_no_limit) : options;
}

// Code of our languages ends most of its lines with `;`, `{` or `}`, or begins them with `#`;
// text of other languages (Python, shell, prose) hardly ever does. Lines of comments say nothing
// either way: a documented project has more of them than of code.
bool code_of_the_language_in(std::vector<std::string> const& pieces) {
    long lines = 0;
    long like_code = 0;
    for (std::string const& piece : pieces)
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            if (text.empty() || text[0] == '*' || text.compare(0, 2, "//") == 0 || text.compare(0, 2, "/*") == 0)
                continue;
            ++lines;
            char const last = text.back();
            like_code += last == ';' || last == '{' || last == '}' || text[0] == '#';
        }
    return lines > 0 && like_code * 4 >= lines;
}

// What the learning promises is lines left as they are: a piece is as far from its formatted self as
// the lines it would change, then, between equal counts, as its white-space distance (capped, so
// that no distance outweighs a line).
unsigned long lines_changed_then_white_space(std::string const& wanted, std::string const& made) {
    unsigned long const changed = lines_of(wanted).size() - lines_left_between(wanted, made);
    return changed * 1000 + std::min(white_space_distance(wanted, made), 999UL);
}

// Trailing comments left where the author put them (the engine's "leave" alignment) keep most of a
// project's lines, and a catalogue with a form of trailing comments standing apart carries that
// rule: a style that lines them up or not takes it where the sample changes no more under it (a
// sample holds few trailing comments, and the search moves only on a gain). Where the forms do
// not carry it (an addon written under it reads back otherwise), a form
// written under it keeps the catalogue's own single blank before its comments, and the addon then
// says one blank whatever was read from the code: such a style takes, of lining runs of trailing
// comments up and not, the one under which the sample changes least (lined up, of equals), with
// the blanks it holds.
clang::format::FormatStyle with_trailing_comments_shown(clang::format::FormatStyle style,
                                                        std::vector<form_case> const& forms,
                                                        language_description const& language) {
    auto const total_of = [&](clang::format::FormatStyle const& tried) {
        unsigned long total = 0;
        for (unsigned long distance : distances_of(forms, tried, lines_changed_then_white_space))
            total += distance;
        return total;
    };
    clang::format::FormatStyle left = style;
    left.AlignTrailingComments.Kind = clang::format::FormatStyle::TCAS_Leave;
    if (style.AlignTrailingComments.Kind != clang::format::FormatStyle::TCAS_Leave &&
        total_of(left) > total_of(style))
        return style;
    std::string const addon = addon_written_in(clang::format::configurationAsText(left), "Trailing comments", language);
    if (!addon.empty() && inference_cache::shared().style_for(addon, language).AlignTrailingComments.Kind ==
                              clang::format::FormatStyle::TCAS_Leave)
        return left;
    if (style.AlignTrailingComments.Kind != clang::format::FormatStyle::TCAS_Leave)
        return style;
    clang::format::FormatStyle best = style;
    unsigned long best_total = 0;
    for (auto const kind : {clang::format::FormatStyle::TCAS_Always, clang::format::FormatStyle::TCAS_Never}) {
        clang::format::FormatStyle shown = style;
        shown.AlignTrailingComments.Kind = kind;
        unsigned long const total = total_of(shown);
        if (kind == clang::format::FormatStyle::TCAS_Always || total < best_total) {
            best = shown;
            best_total = total;
        }
    }
    return best;
}

// The addon with each form replaced by what it comes back as, until every form comes back.
std::string with_fixed_points(std::string addon, std::string const& style_name, language_description const& language) {
    for (int round = 0; round < rounds_to_fixed_points && !forms_not_coming_back(addon, language).empty(); ++round)
        addon = addon_of_forms(forms_formatted_by_inferred_options(addon, language), style_name, language);
    return addon;
}

// The lines of the sources (`which` of them) and those that a revision with the addon leaves as
// they are, counted on every core as a revision run does; `going_on` is asked on this thread only,
// with `done_before` plus the sources counted so far. False when stopped.
struct line_count {
    unsigned long lines = 0;
    unsigned long lines_left = 0;
};

bool count_lines_left(std::vector<std::string> const& sources, std::vector<std::size_t> const& which,
                      std::string const& addon, language_description const& language,
                      learn_style_of::going_on_check const& going_on,
                      unsigned long done_before, unsigned long whole, line_count& counted) {
    reviser revisions(language);
    std::atomic<std::size_t> next{0};
    std::atomic<std::size_t> done{0};
    std::atomic<bool> stop{false};
    std::atomic<unsigned long> lines{0};
    std::atomic<unsigned long> lines_left{0};
    auto const count = [&] {
        try {
            for (std::size_t i = next++; i < which.size() && !stop; i = next++) {
                std::string const& source = sources[which[i]];
                std::string const revised = revisions.revise(source, addon, traits_of_8_bit(source));
                unsigned long const of_source = lines_of(source).size();
                lines += of_source;
                lines_left +=
                    revised == STYLE_TARNEL_SYNTAX_ERROR_TEXT ? of_source : lines_left_between(source, revised);
                ++done;
            }
        } catch (...) {
            stop = true;
        }
    };
    std::vector<std::thread> workers;
    unsigned const cores = std::max(1U, std::thread::hardware_concurrency());
    for (unsigned worker = 1; worker < cores && worker < which.size(); ++worker)
        workers.emplace_back(count);
    auto const report = std::async(std::launch::async, count);
    while (report.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready)
        if (going_on && !going_on(done_before + done, whole))
            stop = true;
    for (std::thread& worker : workers)
        worker.join();
    if (stop || done != which.size())
        return false;
    counted = {lines, lines_left};
    return true;
}

// Every k-th of the sources, at most `most` of them.
std::vector<std::size_t> every_kth_of(std::vector<std::size_t> const& sources, std::size_t most) {
    if (sources.size() <= most)
        return sources;
    std::vector<std::size_t> taken;
    for (std::size_t i = 0; i < most; ++i)
        taken.push_back(sources[i * sources.size() / most]);
    return taken;
}

}  // namespace

// Read from every source, as a sample may hold few switches, breaks or macros, and where the code
// clearly shows one way, held by every style the search moves to: the sample alone would let the
// search trade them for a line of its own pieces.
std::vector<std::string> rules_read_from_every_source(std::vector<std::string> const& sources, int tab_width) {
    int const tab_columns = tab_width ? tab_width : 8;
    std::vector<std::string> rules;
    for (std::string const& reading :
         {continuation_indent_read_from(sources, tab_columns), case_labels_read_from(sources, tab_columns),
          trailing_comment_blanks_read_from(sources), escaped_newlines_read_from(sources, tab_columns),
          braced_lists_read_from(sources), loop_macro_parentheses_read_from(sources),
          blank_lines_read_from(sources), goto_labels_read_from(sources),
          constructor_initializers_read_from(sources, tab_columns),
          tab_width ? continuation_tabs_read_from(sources, tab_columns) : std::string()})
        if (!reading.empty())
            rules.push_back(reading);
    return rules;
}

learned_style learn_style_of::from(std::vector<std::string> const& sources, std::string const& style_name,
                                   going_on_check const& going_on) const {
    return from(sources, {}, style_name, going_on).learned;
}

style_learned_from_starts learn_style_of::from(std::vector<std::string> const& sources,
                                               std::vector<learning_start> const& starts,
                                               std::string const& style_name, going_on_check const& going_on) const {
    style_learned_from_starts nothing;
    try {
        std::vector<std::string> texts;
        std::vector<std::size_t> used;
        for (std::size_t i = 0; i < sources.size(); ++i)
            if (sources[i].find('\0') == std::string::npos && brackets_are_balanced_in(sources[i]) &&
                the_engine_takes(sources[i]) && conditional_branches_of(sources[i]).lines_read() <= most_lines_read) {
                texts.push_back(sources[i]);
                used.push_back(i);
            }
        std::vector<std::string> const pieces = take_sample().of(texts);
        if (!code_of_the_language_in(pieces))
            return nothing;
        std::vector<form_case> forms;
        for (std::string const& piece : pieces)
            forms.push_back({"sample", form_as_code(piece), {}});

        std::vector<std::size_t> const weighed = every_kth_of(used, sources_weighed);
        // The rules learned and each start, each with its own limit and with the author's breaks kept.
        unsigned long const candidates_at_most = 2 * (1 + starts.size());
        unsigned long const whole =
            static_cast<unsigned long>(formatting_budget) + candidates_at_most * weighed.size() + used.size();
        bool stopped = false;
        auto const searching = [&](unsigned long done, unsigned long) {
            stopped = stopped || (going_on && !going_on(done, whole));
            return !stopped;
        };
        read_from_every_source const project = read_from(texts, column_limit_read_from(pieces).tab_width);
        clang::format::FormatStyle const style = with_trailing_comments_shown(
            with_the_authors_way_kept(
                infer_options(language.lexing, formatting_budget, searching, lines_changed_then_white_space)
                    .from(forms, readings_of_code(forms, pieces, project)),
                project),
            forms, language);
        if (stopped)
            return nothing;

        // Under no limit the engine keeps every line break as it finds it, which any piece of the
        // sample favours, so the search cannot judge it: the rules with their limit and with the
        // author's own breaks kept, and each start as it stands and with the author's breaks kept,
        // are weighed on the same share of the sources, and the one that leaves most of their lines
        // as they are stays (the first of equals, in this order).
        struct candidate {
            std::string addon;
            long start = -1;
        };
        std::vector<candidate> candidates;
        auto const weigh_also = [&](std::string const& addon, long start) {
            if (!addon.empty() && std::none_of(candidates.begin(), candidates.end(),
                                               [&](candidate const& other) { return other.addon == addon; }))
                candidates.push_back({addon, start});
        };
        // The rules learned with the author's breaks kept settle their trailing comments anew: under
        // a limit, comments left where they stand can push code over it, which no longer holds. A
        // start with the author's breaks kept is no start's style any more: it takes the rules and
        // macros read from the project's code (a shipped style's own say nothing of the project),
        // and settles its trailing comments as the rules learned do.
        auto const with_breaks_kept = [&](clang::format::FormatStyle options, bool learned) {
            if (options.ColumnLimit == 0)
                return std::string();
            options.ColumnLimit = 0;
            if (!learned)
                options = with_rules_of(options, project);
            options = with_the_authors_way_kept(options, project);
            options = with_trailing_comments_shown(options, forms, language);
            return with_fixed_points(addon_written_in(clang::format::configurationAsText(options), style_name, language),
                                     style_name, language);
        };
        weigh_also(with_fixed_points(addon_written_in(clang::format::configurationAsText(style), style_name, language),
                                     style_name, language),
                   -1);
        if (candidates.empty())
            return nothing;
        weigh_also(with_breaks_kept(style, true), -1);
        std::size_t const learned_candidates = candidates.size();
        // A start as it stands is weighed in its own text (whose inferred options its earlier uses
        // may have kept) and written under the new name only when it wins.
        for (std::size_t i = 0; i < starts.size() && !stopped; ++i) {
            if (form_cases_in(starts[i].addon, language).empty())
                continue;
            weigh_also(starts[i].addon, static_cast<long>(i));
            weigh_also(with_breaks_kept(inference_cache::shared().style_for(starts[i].addon, language), false), -1);
            stopped = stopped || (going_on && !going_on(static_cast<unsigned long>(formatting_budget), whole));
        }
        if (stopped)
            return nothing;

        // With more starts than a few, their candidates are first screened on a quarter of those
        // sources (every k-th of them), and only the best few are weighed with the rules learned on
        // all of them: the count stays within the learning's bounds whatever is installed.
        unsigned long done = static_cast<unsigned long>(formatting_budget);
        std::vector<std::size_t> finalists;
        for (std::size_t i = 0; i < learned_candidates; ++i)
            finalists.push_back(i);
        if (candidates.size() - learned_candidates <= starts_weighed_in_full) {
            for (std::size_t i = learned_candidates; i < candidates.size(); ++i)
                finalists.push_back(i);
        } else {
            std::vector<std::size_t> const screened = every_kth_of(weighed, sources_screened);
            std::vector<std::pair<unsigned long, std::size_t>> screening;  // lines left, candidate
            for (std::size_t i = learned_candidates; i < candidates.size(); ++i) {
                line_count counted;
                if (!count_lines_left(sources, screened, candidates[i].addon, language, going_on, done, whole, counted))
                    return nothing;
                done += screened.size();
                screening.emplace_back(counted.lines_left, i);
            }
            // Most lines left first, then in the candidates' order.
            std::sort(screening.begin(), screening.end(), [](auto const& a, auto const& b) {
                return a.first != b.first ? a.first > b.first : a.second < b.second;
            });
            std::vector<std::size_t> best_starts;
            for (std::size_t i = 0; i < starts_weighed_in_full; ++i)
                best_starts.push_back(screening[i].second);
            std::sort(best_starts.begin(), best_starts.end());
            finalists.insert(finalists.end(), best_starts.begin(), best_starts.end());
        }
        std::size_t best = 0;
        line_count best_count;
        for (std::size_t i = 0; i < finalists.size() && candidates.size() > 1; ++i) {
            line_count counted;
            if (!count_lines_left(sources, weighed, candidates[finalists[i]].addon, language, going_on, done, whole,
                                  counted))
                return nothing;
            done += weighed.size();
            if (i == 0 || counted.lines_left > best_count.lines_left) {
                best = finalists[i];
                best_count = counted;
            }
        }

        // Weighed on every source already, the winner is counted.
        line_count counted = best_count;
        if ((candidates.size() == 1 || weighed.size() < used.size()) &&
            !count_lines_left(sources, used, candidates[best].addon, language, going_on, whole - used.size(), whole,
                              counted))
            return nothing;
        style_learned_from_starts learned;
        learned.learned.lines = counted.lines;
        learned.learned.lines_left = counted.lines_left;
        learned.learned.addon = candidates[best].addon;
        learned.start_taken = candidates[best].start;
        if (learned.start_taken >= 0) {
            std::map<std::string, std::string> start_forms;
            for (structure const& each : language.structures) {
                std::string const form = form_of_structure(each.name).in(candidates[best].addon);
                if (!form.empty())
                    start_forms[each.name] = form;
            }
            learned.learned.addon = addon_of_forms(start_forms, style_name, language);
        }
        return learned;
    } catch (...) {
        return nothing;
    }
}

}  // namespace tarnel_engine
