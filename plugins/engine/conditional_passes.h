// How many times the engine reads a source because of its preprocessor conditionals: it parses
// every branch of a conditional, in one pass over the whole source per combination of branch
// indices across nesting levels, and keeps what each pass read, so a file of long `#elif` chains
// nested a few levels deep costs hundreds of passes, seconds and gigabytes (internal to the engine
// library).
#ifndef TARNEL_ENGINE_CONDITIONAL_PASSES_H
#define TARNEL_ENGINE_CONDITIONAL_PASSES_H

#include <string>
#include <vector>

namespace tarnel_engine {

struct conditional_branches {
    // The most branches (`#if`, each `#elif` and the `#else`) a conditional has at each nesting
    // level, as the engine counts them.
    std::vector<unsigned long> most_at_level;
    unsigned long lines = 0;
    // Whether every conditional opened is closed, and none closed or continued that was not opened:
    // a text cut from a file may hold half a conditional, which would take in the code after it
    // once texts are joined, nesting it one level deeper for each.
    bool paired = true;

    // The engine's passes: the product of the counts, at most a little over a million.
    unsigned long passes() const;
    // The lines read in all passes.
    unsigned long lines_read() const { return passes() * lines; }
    // The branches of a text made of both texts, one after the other.
    conditional_branches joined_with(conditional_branches const& other) const;
};

conditional_branches conditional_branches_of(std::string const& code);

}  // namespace tarnel_engine

#endif
