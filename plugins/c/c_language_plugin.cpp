// The plugin holds nothing of its own: the engine does the work.
#include "c_language_plugin.h"

#include "c_language.h"

c_language_plugin::c_language_plugin() : tarnel_engine::language_plugin_base(c_language()) {}
