// The plugin holds nothing of its own: the engine does the work.
#include "javascript_language_plugin.h"

#include "javascript_language.h"

javascript_language_plugin::javascript_language_plugin()
    : tarnel_engine::language_plugin_base(javascript_language()) {}
