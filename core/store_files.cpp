#include "core/store_files.h"

#include "engine/read_from.h"
#include "engine/write_to.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>
#include <unistd.h>

namespace {

// A write-protected file is one the user keeps: the store neither removes nor replaces it, even
// where the directory would allow it.
bool may_replace(QString const& path) {
    return !QFileInfo(path).exists() || ::access(QFile::encodeName(path).constData(), W_OK) == 0;
}

// A hidden name (so that no listing shows it) that keeps the original name's ending, so that a
// plugin copy still has the name of a library.
QString unused_temporary_name_in(QString const& directory, QString const& file_name) {
    for (;;) {
        QString const name = QString(".tarnel-import-%1-%2")
                                 .arg(QRandomGenerator::global()->generate(), 8, 16, QChar('0'))
                                 .arg(file_name);
        if (!QFileInfo(directory + QDir::separator() + name).exists() &&
            !QFileInfo(directory + QDir::separator() + name).isSymLink())
            return name;
    }
}

}  // namespace

QString new_addons_directory::path() {
    // The user's directory is made when first needed; the bundle's never is.
    QString const directory = path_to().addons_directory_for_new();
    if (directory == path_to().user_addons_directory())
        QDir().mkpath(directory);
    return directory;
}

QString new_plugins_directory::path() {
    QString const directory = path_to().plugins_directory_for_new();
    if (directory == path_to().user_plugins_directory())
        QDir().mkpath(directory);
    return directory;
}

QString where_to_write_addon(QString const& path) {
    QFileInfo const addon(path);
    if (directory_is_writable(addon.absolutePath()))
        return path;
    QString const directory = path_to().user_addons_directory();
    QDir().mkpath(directory);
    return directory + QDir::separator() + addon.fileName();
}

bool remove_addon_at(std::string const& file) {
    QFileInfo const addon(QString::fromStdString(file));
    return detail::remove_from(addon.absolutePath(), addon.fileName().toStdString());
}

bool remove_plugin_at(QString const& file) {
    QFileInfo const plugin(file);
    return detail::remove_from(plugin.absolutePath(), plugin.fileName().toStdString());
}

bool is_plain_file_name(std::string const& name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find(QDir::separator().toLatin1()) == std::string::npos &&
           name.find('\0') == std::string::npos;
}

namespace detail {

bool store_in(QString const& directory, QString const& source, check_of_copy const& check) {
    QString const file_name = QFileInfo(source).fileName();
    if (!is_plain_file_name(file_name.toStdString()))
        return false;
    QString const destination = directory + QDir::separator() + file_name;
    if (!may_replace(destination))
        return false;

    std::string bytes;
    if (!read_from(source).to(bytes))
        return false;
    QString const temporary_name = unused_temporary_name_in(directory, file_name);
    QString const temporary = directory + QDir::separator() + temporary_name;
    if (!write_to(temporary).from(bytes))
        return false;
    QFile::setPermissions(temporary, QFile::permissions(source));

    bool const stored = (!check || check(QFileInfo(temporary).absoluteFilePath())) &&
                        std::rename(QFile::encodeName(temporary).constData(),
                                    QFile::encodeName(destination).constData()) == 0;
    if (!stored)
        QFile::remove(temporary);
    return stored;
}

bool remove_from(QString const& directory, std::string const& file_name) {
    if (!is_plain_file_name(file_name))
        return false;
    QString const path = directory + QDir::separator() + QString::fromStdString(file_name);
    if (!QFileInfo(path).exists() && !QFileInfo(path).isSymLink())
        return false;
    return may_replace(path) && QFile::remove(path);
}

}  // namespace detail
