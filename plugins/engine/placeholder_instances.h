// Placeholders that need another shape before the engine formats a form, and back. SOME_LONG
// stands for an item too long to share its line: the engine sees a long name in its place.
#ifndef TARNEL_ENGINE_PLACEHOLDER_INSTANCES_H
#define TARNEL_ENGINE_PLACEHOLDER_INSTANCES_H

#include <string>

namespace tarnel_engine {

// The form with every placeholder replaced by its instance.
std::string with_instances(std::string const& form);

// Formatted text with every instance turned back into its placeholder.
std::string without_instances(std::string const& text);

}  // namespace tarnel_engine

#endif
