// Loads a language plugin from the plugins directory through a loader that the caller owns: the
// plugin pointer is valid only while that loader lives.
#ifndef STYLE_TARNEL_ENGINE_PLUGIN_OBTAINER_H
#define STYLE_TARNEL_ENGINE_PLUGIN_OBTAINER_H

#include "interface_to_language_plugin.h"

#include <QString>
#include <string>

class QPluginLoader;

class plugin_obtainer {
public:
    explicit plugin_obtainer(QPluginLoader& loader) : loader(loader) {}

    // `file_name` is a bare file name in the plugins directory. Null when the name is no library
    // name, the file does not load as a Qt plugin, or its root object is no language plugin.
    interface_to_language_plugin* operator()(QString const& file_name) const;
    interface_to_language_plugin* operator()(std::string const& file_name) const;

    // Whether the file at `path` (as given) loads as any Qt plugin; the interface is not checked.
    bool this_is_a_plugin(std::string const& path) const;

private:
    QPluginLoader& loader;
};

// Whether the file name part of `path` has the form of a dynamic library.
class language_plugin {
public:
    bool operator()(std::string const& path) const;
};

#endif
