// How many times the engine reads a source because of its preprocessor conditionals: it formats
// every branch of a conditional, in one pass over the whole source per combination of branch
// indices across nesting levels, so a file of long `#elif` chains nested a few levels deep costs
// hundreds of passes (internal to the engine library).
#ifndef TARNEL_ENGINE_CONDITIONAL_PASSES_H
#define TARNEL_ENGINE_CONDITIONAL_PASSES_H

#include <string>

namespace tarnel_engine {

// Whether the lines the engine reads in all its passes over the code stay within a bound (about 100
// passes of a file of 1,000 lines: a few seconds, a few hundred megabytes). The passes are the
// product, over the nesting levels of the conditionals, of the most branches a conditional at that
// level has (`#if`, each `#elif` and the `#else`), as the engine counts them.
bool engine_reads_at_most_a_bounded_amount_of(std::string const& code);

}  // namespace tarnel_engine

#endif
