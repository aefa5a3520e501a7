// The lines of a block comment move with its first line. Run without reflowing comments, the
// engine moves only the line where a block comment begins (internal to the engine library).
#ifndef TARNEL_ENGINE_BLOCK_COMMENT_LINES_H
#define TARNEL_ENGINE_BLOCK_COMMENT_LINES_H

#include "engine_call.h"
#include "token_sequence.h"

#include <clang/Format/Format.h>

#include <string>

namespace tarnel_engine {

// Each block comment whose first line the engine moved by some columns (its text unchanged) gets
// every other line moved as far, in the leading white space alone: columns counted with the
// style's tab width, the new white space laid out as the engine lays out the lines of a comment it
// reflows (tabs as the style uses them). A line with less white space than it should lose loses
// what it has; a line of white space alone stays as it is. Nothing moves when the two texts hold
// different comments.
class move_block_comment_lines {
public:
    move_block_comment_lines(clang::format::FormatStyle const& style, lexed_as language)
        : style(style), language(language) {}

    // `outcome` is the engine's answer to `before`; the moved lines join the ranges it changed.
    void with_their_first_lines(std::string const& before, engine_outcome& outcome) const;

private:
    clang::format::FormatStyle const& style;
    lexed_as const language;
};

}  // namespace tarnel_engine

#endif
