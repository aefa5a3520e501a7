// The Java language as our Java plugin describes it to the engine and the host.
#ifndef TARNEL_PLUGINS_JAVA_LANGUAGE_H
#define TARNEL_PLUGINS_JAVA_LANGUAGE_H

#include "language.h"

tarnel_engine::language_description const& java_language();

#endif
