// Revising some lines of a source: what a language plugin's revise_lines() does, with the promises
// of a whole revision (only white space changes, encoding and line ending kept) and those of a
// partial one (the other lines kept, the revised lines stable when revised again).
#ifndef TARNEL_ENGINE_RANGE_REVISION_H
#define TARNEL_ENGINE_RANGE_REVISION_H

#include "interface_to_language_plugin.h"
#include "language.h"

#include <string>
#include <vector>

namespace tarnel_engine {

class revise_lines_of {
public:
    explicit revise_lines_of(language_description const& language) : language(language) {}

    // The source with the lines of `ranges` in the addon's style; the source itself, byte for
    // byte, when nothing changes, when the ranges name no line of it, or when the revised lines
    // would not stay as they are when revised again; STYLE_TARNEL_SYNTAX_ERROR_TEXT as revise()
    // answers it. Safe on several threads at once. Never throws.
    std::string in(std::string const& source, std::string const& addon, line_ending_traits const& traits,
                   std::vector<line_range> const& ranges) const;

private:
    // in() on the calling thread's stack.
    std::string here(std::string const& source, std::string const& addon, line_ending_traits const& traits,
                     std::vector<line_range> const& ranges) const;

    language_description const& language;
};

}  // namespace tarnel_engine

#endif
