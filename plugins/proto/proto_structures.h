// The structures of a .proto file whose white space a style decides.
#ifndef TARNEL_PLUGINS_PROTO_STRUCTURES_H
#define TARNEL_PLUGINS_PROTO_STRUCTURES_H

#include "structure_catalogue.h"

tarnel_engine::structure_catalogue proto_structures();

#endif
