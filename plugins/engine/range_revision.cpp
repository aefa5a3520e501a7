// The range pipeline: the steps of a whole revision (decode, check brackets, format until stable,
// check that only white space changed, encode back), with the engine told to format the ranges'
// lines alone and each round of the stability check given the same lines where they stand now.
#include "range_revision.h"

#include "bracket_balance.h"
#include "deep_stack.h"
#include "engine_call.h"
#include "engine_limits.h"
#include "inference_cache.h"
#include "kept_regions.h"
#include "revision.h"
#include "text_encoding.h"
#include "token_sequence.h"

#include <algorithm>

namespace tarnel_engine {

namespace {

// As many as a whole revision allows.
int const rounds_to_stability = 4;

std::string const syntax_error = STYLE_TARNEL_SYNTAX_ERROR_TEXT;

// The ranges sorted, those that overlap or touch joined, those past the last line dropped, the
// last clipped to it; lines counted from 1 in a text of line feeds.
std::vector<line_range> lines_within(std::string const& code, std::vector<line_range> ranges) {
    unsigned long const lines = static_cast<unsigned long>(std::count(code.begin(), code.end(), '\n')) +
                                (code.empty() || code.back() == '\n' ? 0 : 1);
    std::sort(ranges.begin(), ranges.end(),
              [](line_range const& a, line_range const& b) { return a.first < b.first; });
    std::vector<line_range> kept;
    for (line_range range : ranges) {
        range.first = std::max<unsigned long>(range.first, 1);
        range.last = std::min(range.last, lines);
        if (range.first > range.last)
            continue;
        if (!kept.empty() && range.first <= kept.back().last + 1)
            kept.back().last = std::max(kept.back().last, range.last);
        else
            kept.push_back(range);
    }
    return kept;
}

// Where line `line` (from 1) begins.
unsigned start_of(std::string const& code, unsigned long line) {
    std::size_t at = 0;
    for (unsigned long each = 1; each < line && at != std::string::npos; ++each) {
        at = code.find('\n', at);
        if (at != std::string::npos)
            ++at;
    }
    return static_cast<unsigned>(at == std::string::npos ? code.size() : at);
}

// Where the last character of line `line`, or of the last line before it that is not blank,
// stands, an escaped line break at its end aside; `begin` when there is none from `begin` on. The
// white space after it (an escaped line break too) belongs to the next line's first token for the
// engine: a range that reached into it would touch that line too.
unsigned last_character_of(std::string const& code, unsigned long line, unsigned begin) {
    std::size_t const feed = code.find('\n', start_of(code, line));
    std::size_t last = feed == std::string::npos ? code.size() : feed;
    do
        last = last == 0 ? std::string::npos : code.find_last_not_of(" \t\r\n\v\f", last - 1);
    while (last != std::string::npos && last > begin && code[last] == '\\');
    return last == std::string::npos || last < begin || code[last] == '\\' ? begin : static_cast<unsigned>(last);
}

// The line (from 1) that holds `offset`.
unsigned long line_of(std::string const& code, unsigned offset) {
    return 1 + static_cast<unsigned long>(
                   std::count(code.begin(), code.begin() + std::min<std::size_t>(offset, code.size()), '\n'));
}

// Where the first character of the line that begins at `begin` stands that is not a blank, or
// `begin` on a blank line. The engine replaces the white space before a token as a whole, from the
// end of the line before: the start of a line moved along with it would land on that line.
unsigned first_character_at(std::string const& code, unsigned begin) {
    std::size_t const first = code.find_first_not_of(" \t\v\f", begin);
    return first == std::string::npos || code[first] == '\n' || code[first] == '\r' ? begin
                                                                                    : static_cast<unsigned>(first);
}

// The ranges' lines for the engine: from the start of each first line to the last character of
// each last, so that no line around is touched; where each begins and ends goes into `edges`, by
// characters that the engine's changes of white space move along with their lines.
std::vector<clang::tooling::Range> characters_of(std::string const& code, std::vector<line_range> const& lines,
                                                 std::vector<unsigned>& edges) {
    std::vector<clang::tooling::Range> characters;
    edges.clear();
    for (line_range const& range : lines) {
        unsigned const begin = start_of(code, range.first);
        unsigned const end = last_character_of(code, range.last, begin);
        characters.emplace_back(begin, end - begin);
        edges.push_back(first_character_at(code, begin));
        edges.push_back(end);
    }
    return characters;
}

// The lines that the edges, moved into the formatted text, enclose. A range's first token that
// the engine joined to the end of a line before takes that line into the range: revised again,
// it is revised whole, as a later revision of the changed lines would revise it.
std::vector<line_range> lines_at(std::string const& code, std::vector<unsigned> const& edges) {
    std::vector<line_range> lines;
    for (std::size_t each = 0; each + 1 < edges.size(); each += 2)
        lines.push_back({line_of(code, edges[each]), line_of(code, edges[each + 1])});
    return lines_within(code, lines);
}

}  // namespace

std::string revise_lines_of::in(std::string const& source, std::string const& addon,
                                line_ending_traits const& traits, std::vector<line_range> const& ranges) const {
    // The engine parses the whole source for a range too: on the same stack of its own.
    std::string revised;
    run_on_a_deep_stack([&] { revised = here(source, addon, traits, ranges); });
    return revised;
}

std::string revise_lines_of::here(std::string const& source, std::string const& addon,
                                  line_ending_traits const& traits, std::vector<line_range> const& ranges) const {
    try {
        text_encoding const encoding = text_encoding::of(source, traits);
        std::optional<std::string> const decoded = encoding.decoded_for_revision(source);
        if (!decoded)
            return source;
        std::vector<line_range> lines = lines_within(*decoded, ranges);
        if (lines.empty())
            return source;
        // The whole source must pair its brackets: a range may open a block that closes outside it.
        // The engine parses all of it, so what it cannot take is refused as for a whole revision.
        if (!brackets_are_balanced_in(*decoded, language.lexing) || !the_engine_takes(*decoded, language.lexing))
            return syntax_error;
        clang::format::FormatStyle style = inference_cache::shared().style_for(addon, language);
        style.LineEnding = engine_line_ending(encoding.ending());

        // Our markers of regions kept as written, in the engine's words: line for line the same.
        kept_regions const regions(*decoded, language.lexing);
        std::string const& told = regions.for_the_engine();
        std::vector<unsigned> edges;
        std::vector<clang::tooling::Range> characters = characters_of(told, lines, edges);
        engine_outcome outcome = format_with(style).the_ranges(told, characters, edges);
        if (!outcome.complete)
            return syntax_error;
        // Stable when formatting the revised lines again, where they stand now, changes nothing.
        bool stable = outcome.text == told;
        for (int round = 0; round < rounds_to_stability && !stable; ++round) {
            lines = lines_at(outcome.text, edges);
            characters = characters_of(outcome.text, lines, edges);
            engine_outcome again = format_with(style).the_ranges(outcome.text, characters, edges);
            if (!again.complete)
                break;
            stable = again.text == outcome.text;
            outcome = std::move(again);
        }
        if (!stable)
            return source;
        return answer_for(source, *decoded, regions.with_markers_put_back(std::move(outcome.text)), encoding,
                          language.lexing);
    } catch (...) {
        return syntax_error;
    }
}

}  // namespace tarnel_engine
