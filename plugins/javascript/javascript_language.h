// The JavaScript language, TypeScript with it, as our JavaScript plugin describes it to the engine
// and the host.
#ifndef TARNEL_PLUGINS_JAVASCRIPT_LANGUAGE_H
#define TARNEL_PLUGINS_JAVASCRIPT_LANGUAGE_H

#include "language.h"

tarnel_engine::language_description const& javascript_language();

#endif
