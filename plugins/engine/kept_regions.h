// Regions kept as written: the lines between a comment `style-tarnel off` and a comment
// `style-tarnel on` (`//` or `/* */` on one line, the words alone in the comment apart from blanks) are left
// as they are, as are those between the engine's own markers, which projects already carry. An
// `off` without its `on` keeps the rest of the file. (Internal to the engine library.)
#ifndef TARNEL_ENGINE_KEPT_REGIONS_H
#define TARNEL_ENGINE_KEPT_REGIONS_H

#include "token_sequence.h"

#include <string>
#include <utility>
#include <vector>

namespace tarnel_engine {

// Our markers told to the engine in its own words, and put back afterwards. The engine keeps the
// text of every comment, so the n-th comment of its result is the n-th of what it was given.
class kept_regions {
public:
    // `code` with each of our markers written as the engine's marker of the same kind.
    kept_regions(std::string const& code, lexed_as language);

    std::string const& for_the_engine() const { return told; }
    // `formatted` (the engine's result of `for_the_engine()`, or of a later round) with our
    // markers put back as they were written.
    std::string with_markers_put_back(std::string formatted) const;

private:
    lexed_as language;
    std::string told;
    // The index of each marker among the comments, and its text as written.
    std::vector<std::pair<std::size_t, std::string>> markers;
};

}  // namespace tarnel_engine

#endif
