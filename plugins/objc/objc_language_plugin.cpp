// The plugin holds nothing of its own: the engine does the work.
#include "objc_language_plugin.h"

#include "objc_language.h"

objc_language_plugin::objc_language_plugin() : tarnel_engine::language_plugin_base(objc_language()) {}
