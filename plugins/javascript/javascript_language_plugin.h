// The JavaScript language plugin's root object: the engine's plugin base with the JavaScript
// description.
#ifndef TARNEL_PLUGINS_JAVASCRIPT_LANGUAGE_PLUGIN_H
#define TARNEL_PLUGINS_JAVASCRIPT_LANGUAGE_PLUGIN_H

#include "language_plugin_base.h"

#include <QObject>

class javascript_language_plugin : public QObject, public tarnel_engine::language_plugin_base {
    Q_OBJECT
    // revise() may run on several threads at once.
    Q_PLUGIN_METADATA(IID STYLE_TARNEL_INTERFACE_ID FILE "../engine/language_plugin.json")
    Q_INTERFACES(interface_to_language_plugin interface_to_style_learning interface_to_style_learning_from_starts
                 interface_to_range_revision interface_to_engine_configuration)
public:
    javascript_language_plugin();
};

#endif
