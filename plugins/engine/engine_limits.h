// What the engine can take: sources nested deeper than its stack survives, or larger than the
// machine's memory lets it revise, are refused before it sees them, as code it cannot format.
#ifndef TARNEL_ENGINE_ENGINE_LIMITS_H
#define TARNEL_ENGINE_ENGINE_LIMITS_H

#include "token_sequence.h"

#include <string>

namespace tarnel_engine {

// The deepest nesting (nesting_depth.h) the engine is given. Real code stays far below it; the
// engine overflows an 8 MB stack at about 35,000 parentheses, and a run of nested `?:` takes it
// seconds at 400 and all the memory of the machine at 2,000 (docs/reliability.md).
unsigned long const deepest_nesting_taken = 256;

// The engine's memory for each token of a source, measured at about 700 bytes, rounded up.
unsigned long const engine_bytes_per_token = 1024;

// Whether the engine may format the code: nested no deeper than deepest_nesting_taken, and with
// memory enough for its tokens in half the memory available now (the host revises other files on
// other workers meanwhile) and in the address space the process may still take.
// Read as the language reads its brackets (nesting_depth.h).
bool the_engine_takes(std::string const& code, lexed_as language = lexed_as::latest_cpp);

// The memory the engine may count on for one source: half the machine's available memory, or
// what the process's address-space limit leaves when less.
unsigned long long memory_for_one_source();

}  // namespace tarnel_engine

#endif
