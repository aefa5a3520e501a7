// The structures of Objective-C alone whose white space a style decides.
#ifndef TARNEL_PLUGINS_OBJC_ONLY_STRUCTURES_H
#define TARNEL_PLUGINS_OBJC_ONLY_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue objc_only_structures();

#endif
