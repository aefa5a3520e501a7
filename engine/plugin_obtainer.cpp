#include "engine/plugin_obtainer.h"

#include "core/path_to.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

interface_to_language_plugin* plugin_obtainer::operator()(QString const& file_name) const {
    // Checking the name first keeps stray files (notes, backups) from ever being opened.
    if (!QLibrary::isLibrary(file_name))
        return nullptr;
    loader.setFileName(QDir(path_to().plugins_directory()).absoluteFilePath(file_name));
    QObject* root = loader.instance();
    if (root == nullptr)
        return nullptr;
    return qobject_cast<interface_to_language_plugin*>(root);
}

interface_to_language_plugin* plugin_obtainer::operator()(std::string const& file_name) const {
    return (*this)(QString::fromStdString(file_name));
}

bool plugin_obtainer::this_is_a_plugin(std::string const& path) const {
    loader.setFileName(QString::fromStdString(path));
    return loader.instance() != nullptr;
}

bool language_plugin::operator()(std::string const& path) const {
    return QLibrary::isLibrary(QFileInfo(QString::fromStdString(path)).fileName());
}
