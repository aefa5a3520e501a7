// The Protocol Buffers language as our plugin describes it to the engine and the host.
#ifndef TARNEL_PLUGINS_PROTO_LANGUAGE_H
#define TARNEL_PLUGINS_PROTO_LANGUAGE_H

#include "language.h"

tarnel_engine::language_description const& proto_language();

#endif
