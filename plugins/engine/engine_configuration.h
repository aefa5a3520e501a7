// An addon's options as a configuration file of the engine (what editors read), and an addon
// written from such a file, with the options that it cannot carry named.
#ifndef TARNEL_ENGINE_ENGINE_CONFIGURATION_H
#define TARNEL_ENGINE_ENGINE_CONFIGURATION_H

#include "interface_to_language_plugin.h"
#include "language.h"

#include <string>

namespace tarnel_engine {

// The options inferred from the addon that the engine reads for C and C++ (those of include
// sorting aside: the sorting is off), in its configuration syntax: first those a style decides,
// then, under a comment saying so, those the plugin forces so that only white space changes; once
// for C and C++ and once more for the headers the engine takes for Objective-C. Empty when the
// addon cannot be read.
std::string engine_configuration_of(std::string const& addon, language_description const& language);

// The addon whose forms the engine writes under the configuration, and the options it sets that
// are left out (they change more than white space) or that no form shows (read back from the
// addon, they come out otherwise: first those it names, then those of the style it is based on);
// a refusal with its reason when the configuration cannot be read or the engine cannot work under
// it.
configured_addon addon_from_configuration(std::string const& configuration, std::string const& style_name,
                                          language_description const& language);

}  // namespace tarnel_engine

#endif
