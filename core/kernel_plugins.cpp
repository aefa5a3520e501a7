// kernel: telling a loadable plugin from any other file, and which interface version it has.
#include "core/kernel.h"

#include "engine/plugin_obtainer.h"

#include <QPluginLoader>

bool kernel::this_is_a_plugin(std::string const& path) const {
    QPluginLoader loader;
    return plugin_obtainer(loader).this_is_a_plugin(path);
}

std::string kernel::plugin_interface_version_of(std::string const& path) const {
    return ::plugin_interface_version_of(QString::fromStdString(path));
}

std::string kernel::plugin_interface_version() const { return STYLE_TARNEL_INTERFACE_VERSION; }
