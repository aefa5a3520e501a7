// Existence checks the front ends make before acting on a language or style a user named.
#ifndef STYLE_TARNEL_CORE_THERE_IS_NO_SUCH_H
#define STYLE_TARNEL_CORE_THERE_IS_NO_SUCH_H

#include <string>

class there_is_no_such {
public:
    // No plugin reports that language name.
    bool language(std::string const& language) const;
    // No addon of that language has that style name. The addons directory must be sound (its
    // style list present); callers check that first.
    bool style(std::string const& style, std::string const& language) const;
};

#endif
