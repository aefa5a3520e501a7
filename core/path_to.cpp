#include "core/path_to.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <unistd.h>

QString path_to::languages_n_styles_directory() const {
    // The executable's directory, then its parent: bin/.. on Linux, Contents/MacOS/.. in a macOS
    // bundle.
    QDir directory(QDir(QCoreApplication::applicationFilePath()).absolutePath());
    directory.cdUp();
    directory.cdUp();
    return directory.absolutePath() + QDir::separator() + "PlugIns";
}

QString path_to::plugins_directory() const {
    return languages_n_styles_directory() + QDir::separator() + "languages";
}

QString path_to::addons_directory() const {
    return languages_n_styles_directory() + QDir::separator() + "styles";
}

QString path_to::user_languages_n_styles_directory() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QDir::separator() + "style-tarnel";
}

QString path_to::user_plugins_directory() const {
    return user_languages_n_styles_directory() + QDir::separator() + "languages";
}

QString path_to::user_addons_directory() const {
    return user_languages_n_styles_directory() + QDir::separator() + "styles";
}

QString path_to::addons_directory_for_new() const {
    // A bundle without its styles directory is a broken installation, which the front ends report
    // as such; one whose directory the user cannot write is the system's.
    QString const bundled = addons_directory();
    return !QFileInfo(bundled).isDir() || directory_is_writable(bundled) ? bundled : user_addons_directory();
}

QString path_to::plugins_directory_for_new() const {
    QString const bundled = plugins_directory();
    return !QFileInfo(bundled).isDir() || directory_is_writable(bundled) ? bundled : user_plugins_directory();
}

bool directory_is_writable(QString const& directory) {
    return QFileInfo(directory).isDir() && ::access(QFile::encodeName(directory).constData(), W_OK | X_OK) == 0;
}
