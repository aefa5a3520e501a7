// The tokens of a source as a compiler of its language reads them: what a revision must keep. The
// same lexer serves the plugins' check of every result and the fuzz targets' check of the plugins.
#ifndef TARNEL_ENGINE_TOKEN_SEQUENCE_H
#define TARNEL_ENGINE_TOKEN_SEQUENCE_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel_engine {

// A language as its compiler reads its tokens, and as the engine formats it. C and C++ in their
// latest standard: digraphs, raw strings, digit separators, encoding prefixes (and, in C++,
// user-defined literals) included. Java: clang's lexer without what C++ alone has (digraphs, raw
// strings, digit separators, encoding prefixes), and with Java's own tokens read whole: text
// blocks ("""...""", their white space included), `>>>`, `>>>=` and `non-sealed`. Protocol
// Buffers: clang's lexer without what C++ alone has, whose tokens are then protobuf's (names,
// numbers, strings in either quote, comments, punctuation).
// Objective-C: clang's lexer for Objective-C and Objective-C++ at once (C++'s latest standard,
// which reads every C program's tokens alike), with `@` read whole with what it leads: `@interface`,
// `@"string"`, `@[`, `@{`, `@(`, `@1`.
// C#: clang's lexer without what C++ alone has, with C#'s own tokens read whole: verbatim strings
// (@"..." with "" inside), interpolated strings ($"...{x}...", $@"...", @$"...", their holes
// included), raw strings ("""...""", $"""...""" and more quotes), verbatim names (@class),
// `?.`, `?[`, `??`, `??=`, `=>`, `..`, `>>>` and `>>>=`.
// JavaScript (and TypeScript): a lexer of its own (javascript_tokens.h), whose results also keep
// every line break where a semicolon could be inserted or taken away (semicolon_insertion.h).
enum class lexed_as { latest_c, latest_cpp, java, protocol_buffers, objective_c, csharp, javascript };

// Where a token of C# ends that clang's lexer reads otherwise (it starts at `start` of the code,
// clang's token ends at `end`): strings verbatim, interpolated or raw, verbatim names, `?.`, `?[`,
// `??`, `??=`, `=>`, `..`, `>>>` and `>>>=`; `end` itself for every other token.
std::size_t end_of_csharp_token(std::string_view code, std::size_t start, std::size_t end);

// The spelling of each token, in order, with lines continued by a backslash joined. Comments are
// tokens too, their white space left out (the engine indents the lines of a block comment again);
// a preprocessor directive is marked where it begins and where its line ends, so that code moved
// into or out of a directive changes the sequence.
std::vector<std::string> tokens_of(std::string const& code, lexed_as language);

// Whether both texts hold the same token sequence.
bool same_tokens_in(std::string const& before, std::string const& after, lexed_as language);

// `after` with a blank put back into each `>>` that stands for `> >` of `before`, when that is all
// that makes their tokens differ; nothing otherwise. The engine reads the two closers of nested
// templates alike either way, and in the latest standard it writes them as `>>`: without the
// blank, code written for C++03 would never be revised.
std::optional<std::string> with_template_closers_kept_apart(std::string const& before, std::string const& after,
                                                            lexed_as language);

// The formatted text as a revision may give it back: `after` itself when it differs from `before`
// in white space alone and holds the same tokens, with the template closers of `before` kept
// apart where that is all that differs; nothing when more than white space would change, or when
// white space alone joins or splits a token (`! =` to `!=`, `u8"x"` to `u8 "x"`).
std::optional<std::string> result_with_the_tokens_of(std::string const& before, std::string after, lexed_as language);

}  // namespace tarnel_engine

#endif
