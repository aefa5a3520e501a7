// Whether the brackets of a source pair up. The engine formats code with a missing or extra brace
// without complaint, so this check stands before it.
#ifndef TARNEL_ENGINE_BRACKET_BALANCE_H
#define TARNEL_ENGINE_BRACKET_BALANCE_H

#include <string>

namespace tarnel_engine {

// True when every (, [ and { of the code is closed by its own kind, in order. Preprocessor lines
// are skipped; of the branches of a conditional (#if ... #elif/#else ... #endif) the first counts,
// as the same code opens a block once in each branch in real sources.
bool brackets_are_balanced_in(std::string const& code);

}  // namespace tarnel_engine

#endif
