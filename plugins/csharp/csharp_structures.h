// The structures of C# whose white space a style decides.
#ifndef TARNEL_PLUGINS_CSHARP_STRUCTURES_H
#define TARNEL_PLUGINS_CSHARP_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue csharp_structures();

#endif
