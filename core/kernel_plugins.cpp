// kernel: telling a loadable plugin from any other file.
#include "core/kernel.h"

#include "engine/plugin_obtainer.h"

#include <QPluginLoader>

bool kernel::this_is_a_plugin(std::string const& path) const {
    QPluginLoader loader;
    return plugin_obtainer(loader).this_is_a_plugin(path);
}
