// Whether a text matches a plugin's regular expression as a whole (Boost.Xpressive, ECMAScript
// syntax). Xpressive recurses once per character for some expressions (a repeated group, for
// one), so a long form would overflow an ordinary stack: the match runs on a thread of its own
// whose stack grows with the text.
#ifndef STYLE_TARNEL_CORE_MATCH_IN_FULL_H
#define STYLE_TARNEL_CORE_MATCH_IN_FULL_H

#include <string>

class match_in_full {
public:
    explicit match_in_full(std::string const& expression) : expression(expression) {}
    // False also when the expression does not compile, or when no thread with a large enough
    // stack can be had.
    bool of(std::string const& text) const;

private:
    std::string const& expression;
};

#endif
