#include "engine/plugin_obtainer.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

interface_to_language_plugin* plugin_obtainer::operator()(QString const& path) const {
    // Checking the name first keeps stray files (notes, backups) from ever being opened; checking
    // the version before loading keeps code built for another layout from ever running.
    if (!QLibrary::isLibrary(QFileInfo(path).fileName()))
        return nullptr;
    if (plugin_interface_version_of(path) != STYLE_TARNEL_INTERFACE_VERSION)
        return nullptr;
    loader.setFileName(path);
    QObject* root = loader.instance();
    if (root == nullptr)
        return nullptr;
    return qobject_cast<interface_to_language_plugin*>(root);
}

interface_to_style_learning* plugin_obtainer::style_learning() const {
    if (!loader.isLoaded())
        return nullptr;
    return qobject_cast<interface_to_style_learning*>(loader.instance());
}

interface_to_style_learning_from_starts* plugin_obtainer::style_learning_from_starts() const {
    if (!loader.isLoaded())
        return nullptr;
    return qobject_cast<interface_to_style_learning_from_starts*>(loader.instance());
}

interface_to_range_revision* plugin_obtainer::range_revision() const {
    if (!loader.isLoaded())
        return nullptr;
    return qobject_cast<interface_to_range_revision*>(loader.instance());
}

interface_to_engine_configuration* plugin_obtainer::engine_configuration() const {
    if (!loader.isLoaded())
        return nullptr;
    return qobject_cast<interface_to_engine_configuration*>(loader.instance());
}

bool plugin_obtainer::this_is_a_plugin(std::string const& path) const {
    loader.setFileName(QString::fromStdString(path));
    return loader.instance() != nullptr;
}

std::string plugin_interface_version_of(QString const& path) {
    QString const identifier = QPluginLoader(path).metaData().value("IID").toString();
    QString const name = STYLE_TARNEL_INTERFACE_NAME;
    if (identifier == name)
        return "none";
    if (!identifier.startsWith(name + "/"))
        return std::string();
    return identifier.mid(name.size() + 1).toStdString();
}
