// Loads a language plugin through a loader that the caller owns: the plugin pointer is valid only
// while that loader lives.
#ifndef STYLE_TARNEL_ENGINE_PLUGIN_OBTAINER_H
#define STYLE_TARNEL_ENGINE_PLUGIN_OBTAINER_H

#include "interface_to_language_plugin.h"

#include <QString>
#include <string>

class QPluginLoader;

class plugin_obtainer {
public:
    explicit plugin_obtainer(QPluginLoader& loader) : loader(loader) {}

    // Null when the file name is no library name, the file is no Qt plugin built for this
    // version of the plugin interface, or its root object is no language plugin.
    interface_to_language_plugin* operator()(QString const& path) const;

    // The learning interface of the plugin that operator() loaded last, or null when the plugin
    // has none (it is optional) or nothing is loaded.
    interface_to_style_learning* style_learning() const;

    // Its learning from starting styles, or null when the plugin has none (it is optional).
    interface_to_style_learning_from_starts* style_learning_from_starts() const;

    // The range interface of the plugin that operator() loaded last, or null when the plugin has
    // none (it is optional: such a plugin revises whole files only) or nothing is loaded.
    interface_to_range_revision* range_revision() const;

    // The configuration interface of the plugin that operator() loaded last, or null when the
    // plugin has none (it is optional) or nothing is loaded.
    interface_to_engine_configuration* engine_configuration() const;

    // Whether the file at `path` loads as any Qt plugin; the interface is not checked.
    bool this_is_a_plugin(std::string const& path) const;

private:
    QPluginLoader& loader;
};

// The version of the plugin interface named in the metadata of the Qt plugin at `path`, read
// without loading it: "none" for our interface's identifier without a version (plugins older
// than the versioned interface), empty for a file that is no Qt plugin or names another
// interface.
std::string plugin_interface_version_of(QString const& path);

#endif
