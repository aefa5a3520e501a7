// Learning a style from a project's own code: what a language plugin's learn_style() does
// (internal to the engine library).
#ifndef TARNEL_ENGINE_STYLE_LEARNING_H
#define TARNEL_ENGINE_STYLE_LEARNING_H

#include "interface_to_language_plugin.h"
#include "lines_left_as_they_are.h"
#include "language.h"

#include <functional>
#include <string>
#include <vector>

namespace tarnel_engine {

class learn_style_of {
public:
    using going_on_check = std::function<bool(unsigned long done, unsigned long whole)>;

    // The description must outlive the learner.
    explicit learn_style_of(language_description const& language) : language(language) {}

    // Reads what a fixed sample of the sources shows directly (indentation, column limit, brace
    // placement, where `*` and `&` lean) and the macros all of them use as loops, then searches
    // the option table for the options under which the sample changes least, writes them as an
    // addon and revises every source in it to count the lines it leaves as they are. Sources in
    // UTF-16 or UTF-32, whose brackets do not pair up, that the engine cannot take
    // (engine_limits.h), or whose preprocessor conditionals would make the engine read them
    // hundreds of times (conditional_passes.h), are neither learned from nor counted. Nothing
    // learned (no source to learn from, or stopped): an empty addon.
    learned_style from(std::vector<std::string> const& sources, std::string const& style_name,
                       going_on_check const& going_on) const;
    // The same, and the addon written is the one, of the rules learned and of each start (as it
    // stands and with the author's own line breaks kept, then with the rules and macros read from
    // every source), that leaves most lines of an equal share of the sources (every k-th of them)
    // as they are; a start taken as it stands is named. Under no limit, what the author joined
    // (arguments packed, short ifs, case labels and functions on one line) is kept.
    style_learned_from_starts from(std::vector<std::string> const& sources, std::vector<learning_start> const& starts,
                                   std::string const& style_name, going_on_check const& going_on) const;

private:
    language_description const& language;
};

// The rules the code shows clearly enough for the learning to hold them whatever its sample shows,
// in the engine's configuration syntax ("{IndentCaseLabels: false}"), read from all the sources:
// the step of a continued line, case labels, blanks before trailing comments, backslashes that
// continue a macro one blank after its code, blanks inside braced lists, loop macros close to their
// parentheses where keywords are not, the most blank lines in a row kept, labels of nested blocks
// first on their line or not, the step of a constructor's initializer list, and, in code indented
// with tabs `tab_width` wide (0: blanks), whether continued lines take tabs beyond their
// statement's.
std::vector<std::string> rules_read_from_every_source(std::vector<std::string> const& sources, int tab_width);

// How many lines of `before` stand unchanged in `after`, a revision of it, as the host counts them.
using style_tarnel::lines_left_between;

}  // namespace tarnel_engine

#endif
