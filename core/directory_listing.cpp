#include "core/directory_listing.h"

#include "core/path_to.h"

#include <QDir>

namespace {

std::vector<std::string> plain_files_in(QString const& directory) {
    std::vector<std::string> names;
    for (auto const& name : QDir(directory).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase))
        names.push_back(name.toStdString());
    return names;
}

}  // namespace

std::vector<std::string> list_of_names_of_plugins() {
    return plain_files_in(path_to().plugins_directory());
}

std::vector<std::string> list_of_user_plugin_files() {
    std::vector<std::string> files;
    QString const user = QDir(path_to().user_plugins_directory()).absolutePath();
    if (user == QDir(path_to().plugins_directory()).absolutePath())
        return files;
    for (auto const& name : plain_files_in(user))
        files.push_back((user + QDir::separator()).toStdString() + name);
    return files;
}

std::vector<std::string> list_of_addon_files() {
    std::vector<std::string> files;
    QStringList directories{path_to().user_addons_directory(), path_to().addons_directory()};
    directories.removeDuplicates();
    for (QString const& directory : directories) {
        QString const absolute = QDir(directory).absolutePath();
        for (auto const& name : plain_files_in(directory))
            files.push_back((absolute + QDir::separator()).toStdString() + name);
    }
    return files;
}
