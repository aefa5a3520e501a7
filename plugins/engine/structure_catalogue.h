// A language's structures: each a fixed token sequence with placeholders, whose white space is
// what a style addon shows. From the tokens comes the expression that a form must match.
#ifndef TARNEL_ENGINE_STRUCTURE_CATALOGUE_H
#define TARNEL_ENGINE_STRUCTURE_CATALOGUE_H

#include <map>
#include <string>
#include <vector>

namespace tarnel_engine {

struct structure {
    // Lower-case words separated by single blanks, as addons and manuals name it.
    std::string name;
    // The token sequence, written out as code. Its white space is no part of the form's promise,
    // but it is the text the engine lays out: where a style keeps what the author wrote (no
    // column limit: "kept line break", "short if") or derives from it (where the `*` of "mixed
    // pointers" lean), the form shows the style through it.
    std::string tokens;
    // One sentence for the manual: what the structure shows a reader of the style.
    std::string purpose;
    // The option groups of the inference (option_moves.h) whose values this structure's form decides
    // (and options it passes to the engine as read, such as the macros used as loops).
    std::vector<std::string> decides;
    // Where the form names things of the project (the macros it uses as loops) rather than holding
    // fixed tokens: the expression it must match, and for the manual, how to write it. Empty for
    // every other structure, whose expression comes from its tokens.
    std::string expression = std::string();
    std::string writing = std::string();
};

using structure_catalogue = std::vector<structure>;

// Splits code into the tokens that forms must keep: words, literals, comment markers and
// operators (longest first); white space separates and is dropped.
std::vector<std::string> tokens_of(std::string const& code);

// The ECMAScript expression that matches the tokens with any white space between them (at least a
// blank between two words), and around them. Linear: literal tokens joined by \s* or \s+.
std::string expression_for(std::vector<std::string> const& tokens);

// Structure name -> expression, as the plugin interface gives them to the host: the structure's own
// expression where it has one, otherwise the one made from its tokens.
std::map<std::string, std::string> expressions_of(structure_catalogue const& catalogue);

}  // namespace tarnel_engine

#endif
