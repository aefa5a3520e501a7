// Running the engine on a stack of known size, whatever thread calls the plugin: the engine's
// parser recurses once per level of nesting, and a host's worker threads may have small stacks.
#ifndef TARNEL_ENGINE_DEEP_STACK_H
#define TARNEL_ENGINE_DEEP_STACK_H

#include <cstddef>
#include <functional>

namespace tarnel_engine {

// The engine's stack: at the deepest nesting it is given (engine_limits.h) it needs about 0.5 MB
// (nested lambdas, the deepest kind), so this leaves a margin of 60 for sanitizer builds and the
// future. Only the pages touched are ever taken from memory.
std::size_t const engine_stack_size = std::size_t(32) << 20;

// Runs `work` on a thread of its own with a stack of engine_stack_size and waits for it; on the
// calling thread when no such thread can be made. `work` must not throw.
void run_on_a_deep_stack(std::function<void()> const& work);

}  // namespace tarnel_engine

#endif
