// The engine answers with replacements; applying them gives the formatted text.
#include "engine_call.h"

#include <clang/Tooling/Core/Replacement.h>

#include <algorithm>
#include <optional>

namespace tarnel_engine {

namespace {

// Whether a replacement changes the white space inside one of the ranges or just before it (the
// line break and indentation of its first token), not after its end.
bool inside(clang::tooling::Replacement const& replacement, std::vector<clang::tooling::Range> const& ranges) {
    return std::any_of(ranges.begin(), ranges.end(), [&](clang::tooling::Range const& range) {
        return replacement.getOffset() + replacement.getLength() >= range.getOffset() &&
               replacement.getOffset() <= range.getOffset() + range.getLength();
    });
}

// The engine replaces the white space before a token as a whole: from the end of the token
// before, across line breaks (escaped ones too), to the token. Where that white space begins on a
// line before a range, that line (its trailing blanks, an escaped line break) and the blank lines
// after it are kept as they are, unless the engine joins the range's first token to it. Where the
// range is blank lines that end before the token, nothing is changed: the token's line is not the
// range's, and blank lines taken away would make the line after them a changed line for a later
// revision of the changed lines (a deletion counts as a change of the line in its place).
std::optional<clang::tooling::Replacement> within_the_lines_of(clang::tooling::Replacement const& replacement,
                                                               std::string const& code,
                                                               std::vector<clang::tooling::Range> const& ranges) {
    unsigned const offset = replacement.getOffset(), end = offset + replacement.getLength();
    llvm::StringRef const white(code.data() + offset, replacement.getLength());
    llvm::StringRef const text = replacement.getReplacementText();
    std::size_t const new_feeds = text.count('\n');
    if (white.find_first_not_of(" \t\v\f\r\n\\") != llvm::StringRef::npos)
        return replacement;  // not white space alone
    for (clang::tooling::Range const& range : ranges) {
        unsigned const begin = range.getOffset(), last = begin + range.getLength();
        if (end < begin || offset > last)
            continue;
        std::size_t const feed = code.find('\n', last);
        unsigned const after = static_cast<unsigned>(feed == std::string::npos ? code.size() : feed + 1);
        unsigned const from = offset < begin && begin > 0 && code[begin - 1] == '\n' ? begin : offset;
        if (end >= after)
            return std::nullopt;  // the token stands on a line after a range of blank lines
        if (from == offset || new_feeds == 0)
            return replacement;  // nothing before the range, or a join
        // The line breaks the engine keeps stand for those before the range first.
        std::size_t const feeds = llvm::StringRef(code.data() + offset, begin - offset).count('\n');
        std::size_t cut = 0;
        for (std::size_t each = 0; each < std::min(feeds, new_feeds); ++each)
            cut = text.find('\n', cut) + 1;
        if (feeds > new_feeds)
            cut = text.rfind('\n') + 1;
        if (end == begin && cut == text.size())
            return std::nullopt;
        return clang::tooling::Replacement(replacement.getFilePath(), begin, end - begin, text.substr(cut));
    }
    return replacement;
}

// With `positions`: only the replacements inside the ranges are applied (the engine also
// re-indents the lines after a range that it takes to be part of its blocks), within the lines of
// the ranges, and the positions are moved by them.
engine_outcome formatted(clang::format::FormatStyle const& style, std::string const& code,
                         std::vector<clang::tooling::Range> const& ranges, std::vector<unsigned>* positions = nullptr) {
    // The engine's own reading of a JavaScript regular expression or template literal skips the
    // byte after a backslash without looking for the end of the text: after a backslash that ends
    // the text it reads on past it and crashes. Such a text is no whole program.
    if (style.Language == clang::format::FormatStyle::LK_JavaScript && !code.empty() && code.back() == '\\')
        return {code, false, {}};
    clang::format::FormattingAttemptStatus status;
    clang::tooling::Replacements replacements = clang::format::reformat(style, code, ranges, "<stdin>", &status);
    if (positions != nullptr) {
        clang::tooling::Replacements kept;
        for (clang::tooling::Replacement const& replacement : replacements)
            if (inside(replacement, ranges))
                if (std::optional<clang::tooling::Replacement> const within =
                        within_the_lines_of(replacement, code, ranges))
                    if (llvm::Error error = kept.add(*within))
                        llvm::consumeError(std::move(error));
        replacements = std::move(kept);
        for (unsigned& position : *positions)
            position = replacements.getShiftedCodePosition(position);
    }
    llvm::Expected<std::string> text = clang::tooling::applyAllReplacements(code, replacements);
    if (!text) {
        llvm::consumeError(text.takeError());
        return {code, false, {}};
    }
    return {std::move(*text), status.FormatComplete, replacements.getAffectedRanges()};
}

// Where the line holding `offset` begins, or the line `back` lines before it.
unsigned start_of_line(std::string const& code, unsigned offset, unsigned back) {
    std::size_t at = std::min<std::size_t>(offset, code.size());
    for (unsigned line = 0;; ++line) {
        std::size_t const feed = at == 0 ? std::string::npos : code.rfind('\n', at - 1);
        std::size_t const begin = feed == std::string::npos ? 0 : feed + 1;
        if (line == back || begin == 0)
            return static_cast<unsigned>(begin);
        at = begin - 1;
    }
}

// Where the line holding `offset` ends (after its line feed), or the line `ahead` lines after it.
unsigned end_of_line(std::string const& code, unsigned offset, unsigned ahead) {
    std::size_t at = std::min<std::size_t>(offset, code.size());
    for (unsigned line = 0; line <= ahead && at < code.size(); ++line) {
        std::size_t const feed = code.find('\n', at);
        at = feed == std::string::npos ? code.size() : feed + 1;
    }
    return static_cast<unsigned>(at);
}

// The engine tests every token against every range it is given: with hundreds of ranges a pass
// costs more than one over the whole text. No more than this many go to it.
std::size_t const most_ranges = 8;

unsigned end_of(clang::tooling::Range const& range) { return range.getOffset() + range.getLength(); }

// The ranges joined across the narrowest gaps between them until no more than `most_ranges` are
// left; the whole code when they then cover half of it or more, which costs hardly more than that
// half. Either way every character of the ranges is still formatted.
std::vector<clang::tooling::Range> fewer(std::vector<clang::tooling::Range> ranges, std::string const& code) {
    std::sort(ranges.begin(), ranges.end(), [](clang::tooling::Range const& a, clang::tooling::Range const& b) {
        return a.getOffset() < b.getOffset();
    });
    if (ranges.size() > most_ranges) {
        std::vector<unsigned> gaps;
        for (std::size_t each = 1; each < ranges.size(); ++each)
            gaps.push_back(ranges[each].getOffset() - std::min(ranges[each].getOffset(), end_of(ranges[each - 1])));
        // Closing every gap no wider than the widest of the narrowest (ranges - most) gaps leaves
        // `most_ranges` ranges at most (fewer when gaps are equally wide).
        std::vector<unsigned> order = gaps;
        std::size_t const to_close = ranges.size() - most_ranges;
        std::nth_element(order.begin(), order.begin() + static_cast<long>(to_close - 1), order.end());
        unsigned const widest_closed = order[to_close - 1];
        std::vector<clang::tooling::Range> joined{ranges.front()};
        for (std::size_t each = 1; each < ranges.size(); ++each) {
            if (gaps[each - 1] <= widest_closed)
                joined.back() = clang::tooling::Range(
                    joined.back().getOffset(),
                    std::max(end_of(joined.back()), end_of(ranges[each])) - joined.back().getOffset());
            else
                joined.push_back(ranges[each]);
        }
        ranges = std::move(joined);
    }
    std::size_t covered = 0;
    for (auto const& range : ranges)
        covered += range.getLength();
    if (2 * covered >= code.size())
        return {clang::tooling::Range(0, static_cast<unsigned>(code.size()))};
    return ranges;
}

}  // namespace

clang::format::FormatStyle::LineEndingStyle engine_line_ending(line_ending ending) {
    return ending == line_ending::carriage_return_line_feed ? clang::format::FormatStyle::LE_DeriveCRLF
                                                            : clang::format::FormatStyle::LE_DeriveLF;
}

engine_outcome format_with::the_code(std::string const& code) const {
    return formatted(style, code, {clang::tooling::Range(0, static_cast<unsigned>(code.size()))});
}

engine_outcome format_with::the_lines_around(std::string const& code,
                                             std::vector<clang::tooling::Range> const& ranges,
                                             unsigned context) const {
    std::vector<clang::tooling::Range> widened;
    for (auto const& range : ranges) {
        unsigned const begin = start_of_line(code, range.getOffset(), context);
        unsigned const end = end_of_line(code, range.getOffset() + range.getLength(), context);
        if (!widened.empty() && begin <= widened.back().getOffset() + widened.back().getLength()) {
            unsigned const start = widened.back().getOffset();
            widened.back() = clang::tooling::Range(start, std::max(end, start + widened.back().getLength()) - start);
        } else {
            widened.emplace_back(begin, end - begin);
        }
    }
    return formatted(style, code, fewer(std::move(widened), code));
}

engine_outcome format_with::the_ranges(std::string const& code, std::vector<clang::tooling::Range> const& ranges,
                                       std::vector<unsigned>& positions) const {
    return formatted(style, code, ranges, &positions);
}

}  // namespace tarnel_engine
