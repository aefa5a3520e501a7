// The plugin holds nothing of its own: the engine does the work.
#include "csharp_language_plugin.h"

#include "csharp_language.h"

csharp_language_plugin::csharp_language_plugin() : tarnel_engine::language_plugin_base(csharp_language()) {}
