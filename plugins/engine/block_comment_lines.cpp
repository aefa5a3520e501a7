// The comments of both texts are read with the lexer of the token checks and paired in order
// (only white space differs between the texts); the result is written afresh, comment by comment,
// so that a comment beginning on a line that an earlier comment moved counts from where it is now.
#include "block_comment_lines.h"

#include "lexing.h"

#include <clang/Lex/Lexer.h>

#include <algorithm>

namespace tarnel_engine {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }

std::string without_blanks(std::string text) {
    text.erase(std::remove_if(text.begin(), text.end(), is_blank), text.end());
    return text;
}

// Whether a line begins at `at`: after a line feed, or after a carriage return alone.
bool line_begins_at(std::string const& text, std::size_t at) {
    if (at == 0)
        return true;
    return text[at - 1] == '\n' || (text[at - 1] == '\r' && (at == text.size() || text[at] != '\n'));
}

std::size_t start_of_line_holding(std::string const& text, std::size_t at) {
    while (!line_begins_at(text, at))
        --at;
    return at;
}

bool is_line_break(char c) { return c == '\n' || c == '\r'; }

}  // namespace

void move_block_comment_lines::with_their_first_lines(std::string const& before, engine_outcome& outcome) const {
    std::string const& after = outcome.text;
    if (after == before || before.find("/*") == std::string::npos)
        return;
    std::vector<comment_place> const old_comments = comments_in(before, language);
    std::vector<comment_place> const new_comments = comments_in(after, language);
    if (old_comments.size() != new_comments.size())
        return;
    unsigned const tab = style.TabWidth;
    // The columns `text` takes from `from` to `to`: a tab reaches the next tab stop, a character
    // of several bytes takes one column (the engine gives East Asian wide characters two: only
    // where such characters stand before a comment on its line is its move misjudged).
    auto const columns_of = [tab](std::string const& text, std::size_t from, std::size_t to) {
        unsigned column = 0;
        for (std::size_t at = from; at < to; ++at) {
            unsigned char const c = static_cast<unsigned char>(text[at]);
            if (c == '\t')
                column += tab == 0 ? 0 : tab - column % tab;
            else if ((c & 0xC0) != 0x80)
                ++column;
        }
        return column;
    };
    // The white space of `width` columns at the start of a line of a comment, as the engine lays
    // it out; `indentation` is the columns of tabs that indent the line where the comment begins.
    auto const white_space_of = [this, tab](unsigned width, unsigned indentation) {
        using clang::format::FormatStyle;
        unsigned tabs = 0;
        switch (style.UseTab) {
        case FormatStyle::UT_Never:
            break;
        case FormatStyle::UT_Always:
            if (tab != 0 && width >= tab && width != 1)
                tabs = width / tab;
            break;
        case FormatStyle::UT_ForContinuationAndIndentation:
            tabs = tab == 0 ? 0 : width / tab;
            break;
        case FormatStyle::UT_ForIndentation:
        case FormatStyle::UT_AlignWithSpaces:
            tabs = tab == 0 ? 0 : std::min(width, indentation) / tab;
            break;
        }
        return std::string(tabs, '\t') + std::string(width - tabs * tab, ' ');
    };

    struct edit {
        std::size_t at;  // in `after`
        std::size_t removed;
        std::size_t inserted;
    };
    std::vector<edit> edits;
    std::string moved;
    std::size_t copied = 0;
    for (std::size_t each = 0; each < old_comments.size(); ++each) {
        comment_place const old_place = old_comments[each];
        comment_place const new_place = new_comments[each];
        std::string const old_text = before.substr(old_place.begin, old_place.length);
        std::string const new_text = after.substr(new_place.begin, new_place.length);
        if (without_blanks(old_text) != without_blanks(new_text))
            return;  // not the same comments: the token check turns this result down anyway
        bool const block = new_text.compare(0, 2, "/*") == 0;
        bool const lines = std::any_of(new_text.begin(), new_text.end(), is_line_break);
        // A comment whose inside the engine changed is left as the engine wrote it.
        if (!block || !lines || old_text != new_text)
            continue;
        moved.append(after, copied, new_place.begin - copied);
        copied = new_place.begin;
        std::size_t const old_line = start_of_line_holding(before, old_place.begin);
        std::size_t const new_line = start_of_line_holding(moved, moved.size());
        long const delta = static_cast<long>(columns_of(moved, new_line, moved.size())) -
                           static_cast<long>(columns_of(before, old_line, old_place.begin));
        if (delta == 0)
            continue;
        std::size_t indented = new_line;
        while (indented < moved.size() && moved[indented] == '\t')
            ++indented;
        unsigned const indentation = columns_of(moved, new_line, indented);
        std::size_t const end = new_place.begin + new_place.length;
        for (std::size_t at = new_place.begin + 1; at < end; ++at) {
            if (!line_begins_at(after, at))
                continue;
            std::size_t content = at;
            while (content < end && (after[content] == ' ' || after[content] == '\t'))
                ++content;
            if (content == end || is_line_break(after[content]))
                continue;  // a line of white space alone
            long const width = static_cast<long>(columns_of(after, at, content));
            std::string const white_space = white_space_of(static_cast<unsigned>(std::max(0L, width + delta)), indentation);
            moved.append(after, copied, at - copied);
            moved += white_space;
            copied = content;
            edits.push_back({at, content - at, white_space.size()});
        }
    }
    if (edits.empty())
        return;
    moved.append(after, copied, std::string::npos);

    // Where an offset of `after` lies in the moved text: an offset inside replaced white space
    // goes to where the new white space begins.
    auto const moved_offset = [&edits](std::size_t offset) {
        long shift = 0;
        for (edit const& each : edits) {
            if (offset < each.at + each.removed || offset <= each.at) {
                offset = std::min(offset, each.at);
                break;
            }
            shift += static_cast<long>(each.inserted) - static_cast<long>(each.removed);
        }
        return static_cast<unsigned>(static_cast<long>(offset) + shift);
    };
    std::vector<clang::tooling::Range> changed;
    for (clang::tooling::Range const& range : outcome.changed) {
        unsigned const begin = moved_offset(range.getOffset());
        unsigned const end = moved_offset(range.getOffset() + range.getLength());
        changed.emplace_back(begin, std::max(begin, end) - begin);
    }
    for (edit const& each : edits) {
        unsigned const begin = moved_offset(each.at);
        changed.emplace_back(begin, static_cast<unsigned>(each.inserted));
    }
    std::sort(changed.begin(), changed.end(), [](clang::tooling::Range const& a, clang::tooling::Range const& b) {
        return a.getOffset() < b.getOffset();
    });
    outcome.changed.clear();
    for (clang::tooling::Range const& range : changed) {
        if (!outcome.changed.empty() &&
            range.getOffset() <= outcome.changed.back().getOffset() + outcome.changed.back().getLength()) {
            unsigned const start = outcome.changed.back().getOffset();
            unsigned const end = std::max(start + outcome.changed.back().getLength(), range.getOffset() + range.getLength());
            outcome.changed.back() = clang::tooling::Range(start, end - start);
        } else {
            outcome.changed.push_back(range);
        }
    }
    outcome.text = std::move(moved);
}

}  // namespace tarnel_engine
