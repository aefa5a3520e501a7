// The Objective-C language as our Objective-C plugin describes it to the engine and the host.
#ifndef TARNEL_PLUGINS_OBJC_LANGUAGE_H
#define TARNEL_PLUGINS_OBJC_LANGUAGE_H

#include "language.h"

tarnel_engine::language_description const& objc_language();

#endif
