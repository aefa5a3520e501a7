// The plugin holds nothing of its own: the engine does the work.
#include "java_language_plugin.h"

#include "java_language.h"

java_language_plugin::java_language_plugin() : tarnel_engine::language_plugin_base(java_language()) {}
