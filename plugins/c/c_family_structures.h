// The structures that C and C++ share: statements, declarations, preprocessor, long lines.
#ifndef TARNEL_PLUGINS_C_FAMILY_STRUCTURES_H
#define TARNEL_PLUGINS_C_FAMILY_STRUCTURES_H

#include "structure_catalogue.h"

#include <string>

tarnel_engine::structure_catalogue c_family_structures();

// The entry of that name in the C family's catalogue, for the catalogues of other languages that
// hold the same structure.
tarnel_engine::structure c_family_structure(std::string const& name);

#endif
