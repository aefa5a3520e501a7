// The plugin holds nothing of its own: the engine does the work.
#include "proto_language_plugin.h"

#include "proto_language.h"

proto_language_plugin::proto_language_plugin() : tarnel_engine::language_plugin_base(proto_language()) {}
