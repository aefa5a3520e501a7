// The plugin holds nothing of its own: the engine does the work.
#include "cpp_language_plugin.h"

#include "cpp_language.h"

cpp_language_plugin::cpp_language_plugin() : tarnel_engine::language_plugin_base(cpp_language()) {}
