// Cuts files at blank lines outside every brace but those of namespaces and extern blocks, outside
// comments, strings and macros; neighbouring cuts of one context make a piece.
#include "code_sample.h"

#include "bracket_balance.h"
#include "conditional_passes.h"
#include "text_lines.h"

#include <algorithm>
#include <cctype>

namespace tarnel_engine {

namespace {

// The passes the engine may make over the whole sample because of its conditionals.
unsigned long const most_passes = 8;

bool blank(std::string const& line) { return line.find_first_not_of(" \t\f\v") == std::string::npos; }

// A brace that opens a namespace or an extern block: its contents are cut as at the top level.
bool opens_a_container(std::vector<std::string> const& lines, std::size_t line) {
    for (std::size_t at = line + 1; at-- > 0 && at + 2 > line;) {
        std::string const text = trimmed(lines[at]);
        if (starts_with(text, "namespace") || starts_with(text, "inline namespace") || starts_with(text, "extern"))
            return true;
        if (at < line && !text.empty() && text != "{")
            return false;
    }
    return false;
}

// The state at the end of every line: whether a cut may follow it, and the lines that open the
// containers around it.
struct line_state {
    bool cut_allowed = false;
    std::vector<std::size_t> containers;
};

std::vector<line_state> states_of(std::vector<std::string> const& lines) {
    std::vector<line_state> states(lines.size());
    bool block_comment = false;
    bool continued_directive = false;
    // Each open brace: the line it stands on, or npos for one that is no container.
    std::vector<std::size_t> open;
    bool broken = false;
    for (std::size_t l = 0; l < lines.size() && !broken; ++l) {
        std::string const& line = lines[l];
        bool const directive = continued_directive || (!block_comment && starts_with(trimmed(line), "#"));
        continued_directive = directive && !line.empty() && line.back() == '\\';
        char quote = 0;
        for (std::size_t i = 0; i < line.size(); ++i) {
            char const c = line[i];
            char const next = i + 1 < line.size() ? line[i + 1] : '\0';
            if (block_comment) {
                if (c == '*' && next == '/') {
                    block_comment = false;
                    ++i;
                }
            } else if (quote) {
                if (c == '\\')
                    ++i;
                else if (c == quote)
                    quote = 0;
            } else if (c == '/' && next == '/') {
                break;
            } else if (c == '/' && next == '*') {
                block_comment = true;
                ++i;
            } else if (c == '"' || c == '\'') {
                // A digit separator is no quote; a raw string is too rare to cut around.
                if (c == '\'' && i > 0 && std::isalnum(static_cast<unsigned char>(line[i - 1])))
                    continue;
                quote = c;
            } else if (!directive && c == '{') {
                open.push_back(opens_a_container(lines, l) ? l : std::string::npos);
            } else if (!directive && c == '}') {
                if (open.empty())
                    broken = true;
                else
                    open.pop_back();
            }
        }
        line_state& state = states[l];
        state.cut_allowed = !block_comment && !continued_directive && !quote && !broken;
        for (std::size_t brace : open) {
            state.cut_allowed = state.cut_allowed && brace != std::string::npos;
            state.containers.push_back(brace);
        }
    }
    if (broken || !open.empty() || block_comment)
        for (line_state& state : states)
            state.cut_allowed = false;
    return states;
}

std::string piece_of(std::vector<std::string> const& lines, std::vector<std::size_t> const& containers,
                     std::size_t begin, std::size_t end) {
    std::string piece;
    // Each opening line once, however many containers it opens (`namespace a { namespace b {`),
    // so that the piece's braces pair up.
    std::size_t written_to = 0;
    for (std::size_t opener : containers) {
        // The head of a namespace whose brace stands on a line of its own comes with it.
        std::size_t from = trimmed(lines[opener]) == "{" && opener > 0 ? opener - 1 : opener;
        for (from = std::max(from, written_to); from <= opener; ++from)
            piece += lines[from] + "\n";
        written_to = std::max(written_to, opener + 1);
    }
    for (std::size_t l = begin; l < end; ++l)
        piece += lines[l] + "\n";
    for (std::size_t i = containers.size(); i-- > 0;) {
        std::string const& opener = lines[containers[i]];
        piece += opener.substr(0, opener.find_first_not_of(" \t")) + "}\n";
    }
    return piece;
}

}  // namespace

std::vector<std::string> take_sample::of(std::vector<std::string> const& texts) const {
    std::vector<std::string> pieces;
    if (texts.empty())
        return pieces;
    // Every k-th text, k rounded up (so at most `bounds.files` of them, often fewer). The learning's
    // own every k-th of its sources (style_learning.cpp) takes exactly as many as it may, at
    // fractional strides: other files, so every learned style's sample, and with it the styles and
    // their recorded figures, would change for no gain of the sample's.
    std::size_t const step = (texts.size() + bounds.files - 1) / bounds.files;
    // Each file's share of the lines, so that the sample reaches the last file as well as the first
    // (a few long files would otherwise fill it).
    std::size_t const files = (texts.size() + step - 1) / step;
    std::size_t const share = std::min(bounds.lines_of_a_file, std::max(bounds.lines_of_a_piece, bounds.lines / files));
    std::size_t taken = 0;
    // The search formats all pieces in one engine call, which reads them all once per pass.
    conditional_branches sampled;
    for (std::size_t f = 0; f < texts.size() && taken < bounds.lines; f += step) {
        std::vector<std::string> const lines = lines_of(texts[f]);
        std::vector<line_state> const states = states_of(lines);
        // Cuts: blank lines after which a cut is allowed; each run between two cuts is a segment.
        // A long file's share is taken from its second third: past the licence, the includes and
        // the declarations every file opens with, in the code that shows the most layout.
        std::size_t const from = lines.size() > 3 * share ? lines.size() / 3 : 0;
        std::size_t begin = 0;
        std::size_t of_this_file = 0;
        for (std::size_t l = 0; l <= lines.size() && of_this_file < share; ++l) {
            bool const cut = l == lines.size() || (blank(lines[l]) && l > 0 && states[l - 1].cut_allowed &&
                                                   states[l].containers == states[l - 1].containers);
            if (!cut)
                continue;
            if (l < from) {
                begin = l;
                continue;
            }
            std::size_t const length = l - begin;
            if (length == 0)
                continue;
            std::vector<std::size_t> const before = begin == 0 ? std::vector<std::size_t>() : states[begin - 1].containers;
            line_state const& last = states[l - 1];
            bool const whole = before == last.containers && last.cut_allowed;
            if (whole && length < bounds.lines_of_a_piece / 2 && l < lines.size())
                continue;  // too short yet: the next segment joins it
            if (whole && length <= bounds.lines_of_a_file) {
                std::string const piece = piece_of(lines, before, begin, l);
                // A piece whose brackets do not pair up (a macro that opens a block, a brace in a
                // conditional branch) can keep the engine busy for minutes under some styles, and
                // nested conditionals of many branches make it read the whole sample many times
                // (half a conditional, cut from its end, nests every piece after it deeper).
                conditional_branches const of_piece = conditional_branches_of(piece);
                conditional_branches const with_piece = sampled.joined_with(of_piece);
                if (!blank(piece) && brackets_are_balanced_in(piece) && of_piece.paired &&
                    with_piece.passes() <= most_passes) {
                    sampled = with_piece;
                    pieces.push_back(piece);
                    of_this_file += length;
                    taken += length;
                }
            }
            begin = l;
        }
    }
    return pieces;
}

}  // namespace tarnel_engine
