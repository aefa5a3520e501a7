// Sample, readings, search, addon, fixed points, count: each step bounded by the sample, not by the
// size of the project, except the last count, which revises every source once.
#include "style_learning.h"

#include "bracket_balance.h"
#include "code_sample.h"
#include "conditional_passes.h"
#include "form_readings.h"
#include "engine_limits.h"
#include "form_conflicts.h"
#include "project_macros.h"
#include "option_inference.h"
#include "revision.h"
#include "white_space.h"

#include <clang/Format/Format.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <map>
#include <regex>
#include <thread>

namespace tarnel_engine {

namespace {

// The forms the search may format, in pieces of the sample: about 20 s on one core for a sample of
// 2,400 lines (bench/learning), leaving time to revise 400 files for the count.
long const formatting_budget = 20000;
// Rewrites of the addon with the forms as they come back, until every form is a fixed point.
int const rounds_to_fixed_points = 3;
// The sources on which the rules with the author's own line breaks kept are weighed against the
// rules with a limit, every k-th of them: a fair share of any project, at a quarter of the count's
// cost on 400 files.
std::size_t const sources_weighed = 100;
// The lines the engine may read in all its passes over one source (conditional_passes.h): a 10,000
// line file read a hundred times, a few seconds and a few hundred megabytes.
unsigned long const most_lines_read = 1000000;

std::string trimmed(std::string const& line) {
    std::size_t const begin = line.find_first_not_of(" \t");
    if (begin == std::string::npos)
        return std::string();
    return line.substr(begin, line.find_last_not_of(" \t") - begin + 1);
}

bool ends_with(std::string const& text, std::string const& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

bool starts_with(std::string const& text, std::string const& prefix) { return text.compare(0, prefix.size(), prefix) == 0; }

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

// The side `*` and `&` lean to in declarations, where one side clearly outnumbers the other.
std::string pointers_read_from(std::vector<std::string> const& pieces) {
    static std::regex const left(R"([A-Za-z0-9_>][*&]+ [A-Za-z_])");
    static std::regex const right(R"([A-Za-z0-9_>] [*&]+[A-Za-z_])");
    long lean_left = 0;
    long lean_right = 0;
    for (std::string const& piece : pieces)
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            if (starts_with(text, "//") || starts_with(text, "*") || starts_with(text, "/*") || starts_with(text, "#"))
                continue;
            lean_left += std::distance(std::sregex_iterator(text.begin(), text.end(), left), std::sregex_iterator());
            lean_right += std::distance(std::sregex_iterator(text.begin(), text.end(), right), std::sregex_iterator());
        }
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
    std::size_t width = 0;
    for (char c : line) {
        if (c == ' ')
            ++width;
        else if (c == '\t')
            width += static_cast<std::size_t>(tab_width) - width % static_cast<std::size_t>(tab_width);
        else
            break;
    }
    return width;
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

// `sources` are the whole sources the sample was taken from: the macros used as loops, statements
// and attributes are found in all of them, since a sample may hold few uses.
form_readings readings_of_code(std::vector<form_case> const& forms, std::vector<std::string> const& pieces,
                               std::vector<std::string> const& sources) {
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
    // Read from every source, as a sample may hold few switches or breaks, and where the code
    // clearly shows one way, held by every style the search moves to: the sample alone would let
    // the search trade them for a line of its own pieces.
    int const tab_columns = columns.tab_width ? columns.tab_width : 8;
    for (std::string const& reading :
         {continuation_indent_read_from(sources, tab_columns), case_labels_read_from(sources, tab_columns),
          trailing_comment_blanks_read_from(sources)})
        if (!reading.empty()) {
            readings.layout.push_back(reading);
            readings.certain.push_back(reading);
        }
    readings.braces = braces_read_from(pieces);
    for (macro_kind const& kind : macro_kinds()) {
        std::vector<std::string> const macros = kind.used_in(sources);
        if (!macros.empty())
            readings.passed.push_back(macros_option_for(kind, macros));
    }
    return readings;
}

// Code of our languages ends most of its lines with `;`, `{` or `}`, or begins them with `#`;
// text of other languages (Python, shell, prose) hardly ever does.
bool code_of_the_language_in(std::vector<std::string> const& pieces) {
    long lines = 0;
    long like_code = 0;
    for (std::string const& piece : pieces)
        for (std::string const& line : lines_of(piece)) {
            std::string const text = trimmed(line);
            if (text.empty())
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

learned_style learn_style_of::from(std::vector<std::string> const& sources, std::string const& style_name,
                                   going_on_check const& going_on) const {
    learned_style learned;
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
            return learned;
        std::vector<form_case> forms;
        for (std::string const& piece : pieces)
            forms.push_back({"sample", form_as_code(piece), {}});

        std::vector<std::size_t> const weighed = every_kth_of(used, sources_weighed);
        unsigned long const whole = static_cast<unsigned long>(formatting_budget) + 2 * weighed.size() + used.size();
        bool stopped = false;
        auto const searching = [&](unsigned long done, unsigned long) {
            stopped = stopped || (going_on && !going_on(done, whole));
            return !stopped;
        };
        clang::format::FormatStyle const style =
            infer_options(language.lexing, formatting_budget, searching, lines_changed_then_white_space)
                .from(forms, readings_of_code(forms, pieces, texts));
        if (stopped)
            return learned;
        std::string addon =
            with_fixed_points(addon_written_in(clang::format::configurationAsText(style), style_name, language),
                              style_name, language);
        if (addon.empty())
            return learned;

        // Under no limit the engine keeps every line break as it finds it, which any piece of the
        // sample favours, so the search cannot judge it: the same rules with the author's own
        // breaks kept are weighed against the rules with their limit on a share of the sources,
        // and the one that leaves more of their lines as they are stays.
        if (style.ColumnLimit != 0) {
            clang::format::FormatStyle kept_breaks = style;
            kept_breaks.ColumnLimit = 0;
            std::string const other = with_fixed_points(
                addon_written_in(clang::format::configurationAsText(kept_breaks), style_name, language), style_name,
                language);
            line_count with_limit, without;
            unsigned long const before = static_cast<unsigned long>(formatting_budget);
            if (!count_lines_left(sources, weighed, addon, language, going_on, before, whole, with_limit) ||
                (!other.empty() && !count_lines_left(sources, weighed, other, language, going_on,
                                                     before + weighed.size(), whole, without)))
                return learned;
            if (!other.empty() && without.lines_left > with_limit.lines_left)
                addon = other;
        }

        line_count counted;
        if (!count_lines_left(sources, used, addon, language, going_on,
                              static_cast<unsigned long>(formatting_budget) + 2 * weighed.size(), whole, counted))
            return learned_style();
        learned.lines = counted.lines;
        learned.lines_left = counted.lines_left;
        learned.addon = addon;
        return learned;
    } catch (...) {
        return learned_style();
    }
}

}  // namespace tarnel_engine
