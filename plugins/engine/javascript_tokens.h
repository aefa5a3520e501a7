// The tokens of JavaScript and TypeScript as their own lexer reads them, where clang's lexer would
// split or join them otherwise: the text of template literals whole (the code of their
// substitutions, nested ones too, read as code),
// regular expression literals told from division by the token before them, strings in either
// quote, private names, and the operators of the language (`=>`, `?.`, `??`, `**`, `===`, `>>>`, …).
#ifndef TARNEL_ENGINE_JAVASCRIPT_TOKENS_H
#define TARNEL_ENGINE_JAVASCRIPT_TOKENS_H

#include <string>
#include <vector>

namespace tarnel_engine {

struct javascript_token {
    std::string text;  // comments with their white space left out
    std::size_t end = 0;  // the offset just past it in the code
    bool is_comment = false;
    std::size_t begin = 0;  // the offset of its first byte
    bool line_break_before = false;  // a line ends between the code token before and this one
    bool in_a_jsx_tag = false;  // read inside the `<...>` of a JSX tag, where no semicolon is inserted
};

// The tokens of a source, comments among them, in order.
std::vector<javascript_token> javascript_tokens_of(std::string const& code);

}  // namespace tarnel_engine

#endif
