// The structures of Java whose white space a style decides.
#ifndef TARNEL_PLUGINS_JAVA_STRUCTURES_H
#define TARNEL_PLUGINS_JAVA_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue java_structures();

#endif
