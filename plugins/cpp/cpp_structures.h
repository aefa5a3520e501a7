// The structures of C++ beyond those it shares with C: classes, namespaces, templates, lambdas.
#ifndef TARNEL_PLUGINS_CPP_STRUCTURES_H
#define TARNEL_PLUGINS_CPP_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue cpp_only_structures();

#endif
