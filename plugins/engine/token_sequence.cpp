// clang's own lexer in raw mode (no preprocessor, no file): every byte of the text is either white
// space or part of a token, so two texts with the same tokens differ in white space alone.
#include "token_sequence.h"

#include "javascript_tokens.h"
#include "lexing.h"
#include "semicolon_insertion.h"
#include "white_space.h"

#include <clang/Lex/Lexer.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace tarnel_engine {


namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }

// A backslash at the end of a line (blanks may stand between; the line may end with LF, CR LF or
// CR) continues the line: the compiler reads the two lines as one.
std::string without_line_continuations(std::string const& text) {
    std::string joined;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\') {
            std::size_t next = at + 1;
            while (next < text.size() && (text[next] == ' ' || text[next] == '\t' || text[next] == '\v' || text[next] == '\f'))
                ++next;
            if (next < text.size() && (text[next] == '\n' || text[next] == '\r')) {
                at = next + (text[next] == '\r' && next + 1 < text.size() && text[next + 1] == '\n' ? 1 : 0);
                continue;
            }
        }
        joined += text[at];
    }
    return joined;
}

bool is_word_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '$' ||
           static_cast<unsigned char>(c) >= 0x80;
}

// Where a token of Java ends that clang's lexer reads as the first part of it (`spelling`, ending
// at `end`): a text block after its `""`, `>>>` and `>>>=` after their `>>`, `non-sealed` after
// its `non`; `end` itself for every other token. An unclosed text block takes the rest.
std::size_t end_of_java_token(std::string_view code, std::string_view spelling, std::size_t end) {
    auto const follows = [&](std::string_view text) { return code.substr(end, text.size()) == text; };
    if (spelling == "\"\"" && follows("\"")) {
        for (std::size_t at = end + 1; at < code.size(); ++at) {
            if (code[at] == '\\')
                ++at;
            else if (code.substr(at, 3) == "\"\"\"")
                return at + 3;
        }
        return code.size();
    }
    if (spelling == ">>" && follows(">"))
        return end + (follows(">=") ? 2 : 1);
    if (spelling == "non" && follows("-sealed") && (end + 7 == code.size() || !is_word_character(code[end + 7])))
        return end + 7;
    return end;
}

// Where a string of C# that opens at `at` ends: `dollars` `$`s before it (an interpolated string,
// whose holes in braces may hold strings of their own), `verbatim` for an `@` (`""` stands for a
// quote, a backslash for itself). Three quotes or more open a raw string, closed by as many. An
// unclosed string takes the rest of its line (the rest of the code when verbatim, raw or
// interpolated).
std::size_t end_of_csharp_string(std::string_view code, std::size_t at, std::size_t dollars, bool verbatim) {
    std::size_t quotes = 0;
    while (at + quotes < code.size() && code[at + quotes] == '"')
        ++quotes;
    if (quotes >= 3) {
        std::size_t const found = code.find(std::string(quotes, '"'), at + quotes);
        if (found == std::string_view::npos)
            return code.size();
        std::size_t end = found + quotes;
        while (end < code.size() && code[end] == '"')
            ++end;
        return end;
    }
    if (quotes == 2 && !verbatim)
        return at + 2;
    for (std::size_t next = at + 1; next < code.size(); ++next) {
        char const c = code[next];
        if (c == '\\' && !verbatim) {
            ++next;
        } else if (c == '"') {
            if (!verbatim || next + 1 >= code.size() || code[next + 1] != '"')
                return next + 1;
            ++next;
        } else if (c == '{' && dollars > 0) {
            if (next + 1 < code.size() && code[next + 1] == '{') {
                ++next;
                continue;
            }
            // A hole: an expression up to its closing brace, with braces, characters and strings
            // of its own.
            std::size_t depth = 1;
            while (++next < code.size()) {
                char const inner = code[next];
                if (inner == '{') {
                    ++depth;
                } else if (inner == '}') {
                    if (--depth == 0)
                        break;
                } else if (inner == '\'') {
                    std::size_t const close = code.find('\'', next + (next + 1 < code.size() && code[next + 1] == '\\' ? 3 : 2));
                    if (close == std::string_view::npos)
                        return code.size();
                    next = close;
                } else if (inner == '"' || inner == '@' || inner == '$') {
                    std::size_t opening = next, inner_dollars = 0;
                    bool inner_verbatim = false;
                    while (opening < code.size() && (code[opening] == '$' || code[opening] == '@')) {
                        inner_dollars += code[opening] == '$';
                        inner_verbatim = inner_verbatim || code[opening] == '@';
                        ++opening;
                    }
                    if (opening < code.size() && code[opening] == '"')
                        next = end_of_csharp_string(code, opening, inner_dollars, inner_verbatim) - 1;
                    else
                        next = opening - 1;
                }
            }
            if (next >= code.size())
                return code.size();
        } else if ((c == '\n' || c == '\r') && !verbatim && dollars == 0) {
            return next;
        }
    }
    return code.size();
}

// Markers that no token's spelling can be: a line break leads them.
std::string const directive_begins = "\n#";
std::string const directive_ends = "\n";

// Reads the tokens of a text one at a time, the markers of directives among them, reusing its
// buffers: two texts are compared without holding either's tokens.
class token_reader {
public:
    token_reader(std::string const& code, lexed_as language)
        : begin(code.data()), size(code.size()), language(language), options(lexer_options_for(language)),
          lexer(clang::SourceLocation(), options, begin, begin, begin + code.size()) {
        lexer.SetCommentRetentionState(true);
    }

    // The next token and the offset just past it in the code; false at the end. The text stays
    // valid until the next call.
    bool next(std::string_view& text, std::size_t& end) {
        if (at == count) {
            if (done)
                return false;
            read();
            if (at == count)
                return false;
        }
        text = queued[at];
        end = queued_end[at];
        ++at;
        return true;
    }

private:
    std::string& queue(std::size_t end) {
        queued_end[count] = end;
        return queued[count++];
    }

    void read() {
        at = count = 0;
        clang::Token token;
        lexer.LexFromRawLexer(token);
        std::size_t end = static_cast<std::size_t>(lexer.getBufferLocation() - begin);
        if (token.isAtStartOfLine()) {
            line_start = true;
            if (in_directive)
                queue(end).assign(directive_ends);
            in_directive = false;
        }
        if (token.is(clang::tok::eof)) {
            if (in_directive)
                queue(end).assign(directive_ends);
            done = true;
            return;
        }
        std::size_t const start = end - token.getLength();
        if (language == lexed_as::java) {
            std::size_t const whole =
                end_of_java_token(std::string_view(begin, size), std::string_view(begin + start, end - start), end);
            if (whole != end) {
                lexer.seek(static_cast<unsigned>(whole), false);
                end = whole;
            }
        }
        bool cleaning = token.needsCleaning();
        if (language == lexed_as::objective_c && token.is(clang::tok::at))
            end = end_of_objective_c_token(end, cleaning);
        if (language == lexed_as::csharp) {
            std::size_t const whole = end_of_csharp_token(std::string_view(begin, size), start, end);
            if (whole != end) {
                lexer.seek(static_cast<unsigned>(whole), false);
                end = whole;
            }
        }
        std::string& text = queue(end);
        text.assign(begin + start, begin + end);
        if (cleaning)
            text = without_line_continuations(text);
        if (token.is(clang::tok::comment)) {
            text.erase(std::remove_if(text.begin(), text.end(), is_blank), text.end());
            return;
        }
        if (line_start && token.is(clang::tok::hash)) {
            in_directive = true;
            text.insert(0, directive_begins);
        }
        line_start = false;
    }

    // Where a token of Objective-C that begins with the `@` ending at `end` ends: the bracket of
    // `@[`, `@{` and `@(`, or the whole keyword, string, character or number that follows the `@`
    // with nothing between; `end` itself for a lone `@`.
    std::size_t end_of_objective_c_token(std::size_t end, bool& cleaning) {
        if (end >= size)
            return end;
        char const next = begin[end];
        if (next == '[' || next == '{' || next == '(') {
            lexer.seek(static_cast<unsigned>(end + 1), false);
            return end + 1;
        }
        if (!is_word_character(next) && next != '"' && next != '\'')
            return end;
        clang::Token led;
        lexer.LexFromRawLexer(led);
        std::size_t const led_end = static_cast<std::size_t>(lexer.getBufferLocation() - begin);
        if (led.is(clang::tok::eof) || led_end - led.getLength() != end) {
            lexer.seek(static_cast<unsigned>(end), false);
            return end;
        }
        cleaning = cleaning || led.needsCleaning();
        return led_end;
    }

    char const* const begin;
    std::size_t const size;
    lexed_as const language;
    clang::LangOptions const options;  // the lexer keeps a reference
    clang::Lexer lexer;
    bool in_directive = false;
    bool line_start = true;  // nothing but comments yet on this line
    bool done = false;
    // A token, with the end of a directive before it.
    std::string queued[2];
    std::size_t queued_end[2] = {0, 0};
    int count = 0;
    int at = 0;
};

struct placed_token {
    std::string text;
    std::size_t end = 0;  // the offset just past it in the code
};

std::vector<placed_token> placed_tokens_of(std::string const& code, lexed_as language) {
    std::vector<placed_token> tokens;
    if (language == lexed_as::javascript) {
        for (javascript_token& each : javascript_tokens_of(code))
            tokens.push_back({std::move(each.text), each.end});
        return tokens;
    }
    token_reader reader(code, language);
    std::string_view text;
    std::size_t end = 0;
    while (reader.next(text, end))
        tokens.push_back({std::string(text), end});
    return tokens;
}

}  // namespace

// Where a token of C# ends that clang's lexer reads otherwise (it starts at `start`, clang's token
// ends at `end`): strings verbatim, interpolated or raw, verbatim names, `?.`, `?[`, `??`, `??=`,
// `=>`, `..`, `>>>` and `>>>=`; `end` itself for every other token.
std::size_t end_of_csharp_token(std::string_view code, std::size_t start, std::size_t end) {
    auto const follows = [&](std::string_view text) { return code.substr(end, text.size()) == text; };
    char const first = code[start];
    if (first == '"' || first == '@' || first == '$') {
        std::size_t at = start, dollars = 0;
        bool verbatim = false;
        while (at < code.size() && (code[at] == '$' || code[at] == '@')) {
            dollars += code[at] == '$';
            verbatim = verbatim || code[at] == '@';
            ++at;
        }
        if (at < code.size() && code[at] == '"')
            return std::max(end, end_of_csharp_string(code, at, dollars, verbatim));
        if (first == '@' && at == start + 1 && at < code.size() && is_word_character(code[at])) {
            while (at < code.size() && is_word_character(code[at]))
                ++at;
            return std::max(end, at);
        }
        return end;
    }
    std::string_view const spelling = code.substr(start, end - start);
    if (spelling == "?") {
        if (follows("?="))
            return end + 2;
        if (follows("?") || follows("["))
            return end + 1;
        if (follows(".") && !(end + 1 < code.size() && code[end + 1] >= '0' && code[end + 1] <= '9'))
            return end + 1;
    }
    if (spelling == "=" && follows(">"))
        return end + 1;
    if (spelling == "." && follows(".") && !follows(".."))
        return end + 1;
    if (spelling == ">>" && follows(">"))
        return end + (follows(">=") ? 2 : 1);
    return end;
}

std::vector<std::string> tokens_of(std::string const& code, lexed_as language) {
    std::vector<std::string> texts;
    for (placed_token& token : placed_tokens_of(code, language))
        texts.push_back(std::move(token.text));
    return texts;
}

std::optional<std::string> with_template_closers_kept_apart(std::string const& before, std::string const& after,
                                                            lexed_as language) {
    std::vector<placed_token> const old_tokens = placed_tokens_of(before, language);
    std::vector<placed_token> const new_tokens = placed_tokens_of(after, language);
    std::string kept;
    std::size_t copied = 0;
    std::size_t old_at = 0;
    std::size_t new_at = 0;
    for (; old_at < old_tokens.size() && new_at < new_tokens.size(); ++old_at, ++new_at) {
        if (old_tokens[old_at].text == new_tokens[new_at].text)
            continue;
        bool const joined = new_tokens[new_at].text == ">>" && old_tokens[old_at].text == ">" &&
                            old_at + 1 < old_tokens.size() && old_tokens[old_at + 1].text == ">";
        if (!joined)
            return std::nullopt;
        std::size_t const between = new_tokens[new_at].end - 1;
        kept += after.substr(copied, between - copied) + " ";
        copied = between;
        // `>>>` is read as `>>` and `>`: the blank goes after the second `>` too.
        std::size_t const end = new_tokens[new_at].end;
        if (end < after.size() && after[end] == '>') {
            kept += after.substr(copied, end - copied) + " ";
            copied = end;
        }
        ++old_at;
    }
    if (old_at != old_tokens.size() || new_at != new_tokens.size())
        return std::nullopt;
    kept += after.substr(copied);
    // A blank put back can make other tokens: `>>>` read as `>>` and `>` becomes `> >>`.
    if (!same_tokens_in(before, kept, language))
        return std::nullopt;
    return kept;
}

bool same_tokens_in(std::string const& before, std::string const& after, lexed_as language) {
    if (language == lexed_as::javascript)
        return tokens_of(before, language) == tokens_of(after, language);
    token_reader old_tokens(before, language);
    token_reader new_tokens(after, language);
    std::string_view old_text;
    std::string_view new_text;
    std::size_t end = 0;
    while (true) {
        bool const old_one = old_tokens.next(old_text, end);
        bool const new_one = new_tokens.next(new_text, end);
        if (old_one != new_one || old_text != new_text)
            return false;
        if (!old_one)
            return true;
    }
}

std::optional<std::string> result_with_the_tokens_of(std::string const& before, std::string after, lexed_as language) {
    if (!only_white_space_differs(before, after))
        return std::nullopt;
    std::optional<std::string> kept = same_tokens_in(before, after, language)
                                          ? std::optional<std::string>(std::move(after))
                                          : with_template_closers_kept_apart(before, after, language);
    if (kept && language == lexed_as::javascript && !line_breaks_keep_the_meaning_of(before, *kept))
        return std::nullopt;
    return kept;
}

}  // namespace tarnel_engine
