#include "core/path_to.h"

#include <QCoreApplication>
#include <QDir>

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
