// The structures of JavaScript and TypeScript whose white space a style decides.
#ifndef TARNEL_PLUGINS_JAVASCRIPT_STRUCTURES_H
#define TARNEL_PLUGINS_JAVASCRIPT_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue javascript_structures();

#endif
