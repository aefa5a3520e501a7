// The C# language as our C# plugin describes it to the engine and the host.
#ifndef TARNEL_PLUGINS_CSHARP_LANGUAGE_H
#define TARNEL_PLUGINS_CSHARP_LANGUAGE_H

#include "language.h"

tarnel_engine::language_description const& csharp_language();

#endif
