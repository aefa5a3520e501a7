// What the engine's C# parser does wrong, and the shapes of code that lead it there.
//
// When the engine's C# parser meets a `{` after a name in the middle of a declaration, it looks
// whether the tokens after the brace are accessors: only `public`, `private`, `protected`,
// `internal`, `;`, `get`, `set` and `init`, one of the last three at least. If so it reads a
// property's accessors: nested blocks whole, an expression body after `=>` up to the first `;`
// (whatever brackets stand before it), until a `}`; after that `}` an initializer `= ... ;` (again
// up to the first `;`). It then ends the line, which disconnects the token it stands on from the
// one before, and goes on reading the declaration. When that token is a `{`, it asks again whether
// accessors follow, and the first thing it reads is the token before the brace: there is none,
// and the read of a null pointer kills the process. Valid C# never puts a block right after the
// accessors of a property; the one valid shape that reaches the crash is an initializer whose
// lambda has a block right after its first statement (`P { get; } = () => { F(); { ... } };`),
// where the engine stops reading the initializer at that first `;`. Comments and preprocessor
// lines between change nothing, and of the branches of a conditional the engine reads each
// combination in a pass of its own: any of them may be left out.
#include "source_hazards.h"

#include <clang/Basic/IdentifierTable.h>
#include <clang/Lex/Lexer.h>

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

namespace tarnel_engine {

namespace {

// A token of the code as the engine reads it, or a preprocessor line by the name of its
// directive. Comments are left out: the engine reads past them.
struct piece {
    std::string text;
    bool directive = false;
};

bool is_word_character(char c) {
    unsigned char const byte = static_cast<unsigned char>(c);
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           byte == '_' || byte >= 0x80;
}

// Where the engine ends a C# string whose text starts at `at` (after its `$`, `@` or both and its
// quote): at its closing quote, or nowhere (`code.size()`) when an interpolation closes a brace
// it did not open or the code ends first. Line breaks do not end it.
std::size_t engine_end_of_string(std::string const& code, std::size_t at, bool verbatim, bool interpolated) {
    auto const doubled = [&](std::size_t where) { return where + 1 < code.size() && code[where + 1] == code[where]; };
    unsigned long open = 0;
    for (; at < code.size(); ++at) {
        char const c = code[at];
        if (c == '\\' && !verbatim) {
            ++at;
        } else if (c == '{' && interpolated) {
            if (doubled(at))
                ++at;
            else
                ++open;
        } else if (c == '}' && interpolated) {
            if (doubled(at))
                ++at;
            else if (open > 0)
                --open;
            else
                return code.size();
        } else if (c == '"' && open == 0) {
            if (!(verbatim && doubled(at)))
                return at;
            ++at;
        }
    }
    return code.size();
}

// The tokens as the engine reads them: clang's lexer with the engine's options, a string led by
// `$`, `@` or both taken as one token, and read on across lines as far as its closing quote
// where the engine finds one. Where the engine's reading differs from the compiler's (the token
// check's, token_sequence.h), in malformed strings, it is the engine's that decides the crash.
std::vector<piece> pieces_of(std::string const& code, clang::format::FormatStyle const& style) {
    clang::LangOptions const options = clang::format::getFormattingLangOpts(style);
    char const* const begin = code.data();
    clang::Lexer lexer(clang::SourceLocation(), options, begin, begin, begin + code.size());
    lexer.SetCommentRetentionState(true);
    std::vector<piece> pieces;
    std::vector<std::size_t> starts;  // where each piece of code starts
    bool in_directive = false, named = false;
    clang::Token token;
    while (true) {
        lexer.LexFromRawLexer(token);
        if (token.is(clang::tok::eof))
            break;
        std::size_t const end = static_cast<std::size_t>(lexer.getBufferLocation() - begin);
        std::size_t const start = end - token.getLength();
        std::string text(begin + start, token.getLength());
        if (token.isAtStartOfLine())
            in_directive = false;
        if (token.is(clang::tok::comment))
            continue;
        if (in_directive) {
            if (!named)
                pieces.back().text = text;
            named = true;
            continue;
        }
        if (token.isAtStartOfLine() && token.is(clang::tok::hash)) {
            pieces.push_back({std::string(), true});
            starts.push_back(start);
            in_directive = true;
            named = false;
            continue;
        }
        // The engine takes an unterminated string (it ends at the end of its line) for a string.
        bool const is_string = token.is(clang::tok::string_literal) || (token.is(clang::tok::unknown) && text[0] == '"');
        if (is_string && !pieces.empty() && !pieces.back().directive &&
            (pieces.back().text == "$" || pieces.back().text == "@")) {
            // The engine joins `$"..."`, `@"..."`, `$@"..."` and `@$"..."` into one string.
            std::size_t from = starts.back();
            pieces.pop_back();
            starts.pop_back();
            if (!pieces.empty() && !pieces.back().directive && (pieces.back().text == "$" || pieces.back().text == "@") &&
                pieces.back().text != std::string(1, code[from])) {
                from = starts.back();
                pieces.pop_back();
                starts.pop_back();
            }
            std::string_view const lead(begin + from, std::min<std::size_t>(3, code.size() - from));
            bool const both = lead == "$@\"" || lead == "@$\"";
            bool const verbatim = both || lead.substr(0, 2) == "@\"";
            bool const interpolated = both || lead.substr(0, 2) == "$\"";
            std::size_t string_end = end;
            if (verbatim || interpolated) {
                std::size_t const closing = engine_end_of_string(code, from + (both ? 3 : 2), verbatim, interpolated);
                if (closing < code.size()) {
                    string_end = closing + 1;
                    lexer.seek(static_cast<unsigned>(string_end), false);
                }
            }
            pieces.push_back({code.substr(from, string_end - from), false});
            starts.push_back(from);
            continue;
        }
        if (!pieces.empty() && pieces.back().text == "@" && !pieces.back().directive && is_word_character(text[0])) {
            pieces.back().text += text;  // a verbatim name, `@class`: the engine reads it as a name
            continue;
        }
        if (text == ">" && !pieces.empty() && pieces.back().text == "=" && starts.back() + 1 == start) {
            pieces.back().text = "=>";  // the engine's fat arrow
            continue;
        }
        pieces.push_back({std::move(text), false});
        starts.push_back(start);
    }
    return pieces;
}


bool is_conditional(std::string const& directive) {
    return directive == "if" || directive == "ifdef" || directive == "ifndef" || directive == "elif" ||
           directive == "elifdef" || directive == "elifndef" || directive == "else";
}

// The walk of the engine over the pieces of one source.
class property_walk {
public:
    property_walk(std::string const& code, clang::format::FormatStyle const& style)
        : pieces(pieces_of(code, style)), size(pieces.size()), keywords(clang::format::getFormattingLangOpts(style)),
          closing(size, size), next_semicolon(size + 1, size), next_branch(size, size) {
        std::vector<std::size_t> open, conditionals;
        for (std::size_t at = 0; at < size; ++at) {
            piece const& each = pieces[at];
            if (each.directive) {
                bool const starts = each.text == "if" || each.text == "ifdef" || each.text == "ifndef";
                if (!starts && (is_conditional(each.text) || each.text == "endif") && !conditionals.empty()) {
                    next_branch[conditionals.back()] = at;
                    conditionals.pop_back();
                }
                if (is_conditional(each.text))
                    conditionals.push_back(at);
            } else if (each.text == "{") {
                open.push_back(at);
            } else if (each.text == "}" && !open.empty()) {
                closing[open.back()] = at;
                open.pop_back();
            }
        }
        for (std::size_t at = size; at-- > 0;)
            next_semicolon[at] = !pieces[at].directive && pieces[at].text == ";" ? at : next_semicolon[at + 1];
    }

    bool reaches_the_crash() {
        for (std::size_t at = 0; at < size; ++at)
            if (!pieces[at].directive && pieces[at].text == "{" && follows_a_name(at) && accessors_crash_after(at))
                return true;
        return false;
    }

private:
    // The first token at or after `at`, every branch of the conditionals read.
    std::size_t next_code(std::size_t at) const {
        while (at < size && pieces[at].directive)
            ++at;
        return at;
    }

    bool is(std::size_t at, char const* text) const { return at < size && !pieces[at].directive && pieces[at].text == text; }

    // Whether the engine may take the token before the brace at `at` for a name: a name that is
    // no keyword of its lexer, a verbatim name (@class), or whatever a branch of a conditional
    // just before may leave there.
    bool follows_a_name(std::size_t at) const {
        if (at == 0)
            return false;
        piece const& before = pieces[at - 1];
        if (before.directive)
            return true;
        std::string const& text = before.text;
        if (text.size() > 1 && text[0] == '@' && is_word_character(text[1]))
            return true;
        if (text.empty() || !is_word_character(text[0]) || (text[0] >= '0' && text[0] <= '9'))
            return false;
        auto const found = keywords.find(text);
        return found == keywords.end() || found->getValue()->getTokenID() == clang::tok::identifier;
    }

    static bool is_accessor_word(std::string const& text) {
        return text == "get" || text == "set" || text == "init";
    }

    // Whether the engine reads accessors after the brace at `open`, and a `{` may follow them.
    bool accessors_crash_after(std::size_t open) const {
        bool accessor = false;
        std::size_t at = next_code(open + 1);
        for (; at < size; at = next_code(at + 1)) {
            std::string const& text = pieces[at].text;
            if (!is_accessor_word(text) && text != ";" && text != "public" && text != "private" &&
                text != "protected" && text != "internal")
                break;
            accessor = accessor || is_accessor_word(text);
        }
        if (!accessor)
            return false;
        for (at = next_code(open + 1); at < size;) {
            if (is(at, "}"))
                return a_brace_may_follow(at + 1);
            if (is(at, "{")) {
                at = next_code(closing[at] + (closing[at] < size ? 1 : 0));
            } else if (is(at, "=>")) {
                std::size_t const semicolon = next_semicolon[std::min(at + 1, size)];
                at = semicolon < size ? next_code(semicolon + 1) : size;
            } else {
                at = next_code(at + 1);
            }
        }
        return false;
    }

    // Whether the first token the engine reads at `from` (in some pass over the branches of the
    // conditionals), or after an initializer that starts there, may be a `{`.
    bool a_brace_may_follow(std::size_t from) const {
        for (std::size_t const first : first_tokens_from(from)) {
            if (is(first, "{"))
                return true;
            if (is(first, "=") || is(first, "=>")) {
                std::size_t const semicolon = next_semicolon[first];
                if (semicolon < size)
                    for (std::size_t const after : first_tokens_from(semicolon + 1))
                        if (is(after, "{"))
                            return true;
            }
        }
        return false;
    }

    // The tokens that may come first at `from`: a branch of a conditional may be read or left out.
    std::set<std::size_t> first_tokens_from(std::size_t from) const {
        std::set<std::size_t> firsts, seen;
        std::vector<std::size_t> to_visit{from};
        while (!to_visit.empty()) {
            std::size_t const at = to_visit.back();
            to_visit.pop_back();
            if (at >= size || !seen.insert(at).second)
                continue;
            if (!pieces[at].directive) {
                firsts.insert(at);
                continue;
            }
            to_visit.push_back(at + 1);
            if (is_conditional(pieces[at].text))
                to_visit.push_back(next_branch[at]);
        }
        return firsts;
    }

    std::vector<piece> const pieces;
    std::size_t const size;
    clang::IdentifierTable const keywords;
    std::vector<std::size_t> closing;         // of each `{`, where its `}` stands; `size` when none
    std::vector<std::size_t> next_semicolon;  // the first `;` at or after each piece
    std::vector<std::size_t> next_branch;     // of each conditional directive, the next of its chain
};

}  // namespace

bool engine_survives_the_code(std::string const& code, clang::format::FormatStyle const& style) {
    // The engine's own reading of a JavaScript regular expression or template literal skips the
    // byte after a backslash without looking for the end of the text: after a backslash that ends
    // the text it reads on past it and crashes. Such a text is no whole program.
    if (style.isJavaScript())
        return code.empty() || code.back() != '\\';
    if (!style.isCSharp())
        return true;
    return !property_walk(code, style).reaches_the_crash();
}

}  // namespace tarnel_engine
