// The structures that C and C++ share: statements, declarations, preprocessor, long lines.
#ifndef TARNEL_PLUGINS_C_FAMILY_STRUCTURES_H
#define TARNEL_PLUGINS_C_FAMILY_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue c_family_structures();

#endif
