// Catalogue entries written once and taken by several languages' catalogues, so that a structure
// the languages share is the same code with the same description in each.
#ifndef TARNEL_ENGINE_SHARED_STRUCTURES_H
#define TARNEL_ENGINE_SHARED_STRUCTURES_H

#include "structure_catalogue.h"

#include <string>

namespace tarnel_engine {

// The entry of that name in a catalogue; one with the name alone (no tokens, so that its form
// matches no code) where the catalogue has none.
structure structure_named(std::string const& name, structure_catalogue const& catalogue);

// An entry that Java's, JavaScript's and C#'s catalogues share and the C family's does not hold
// as they write it: "blank lines", "for", "function call" (of a method), "long call chain", "long
// method call", "short if", "short loop", "switch", "try catch", ...
structure shared_structure(std::string const& name);

}  // namespace tarnel_engine

#endif
