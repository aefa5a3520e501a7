#include "tests/store/helpers/store_fixture.h"

#include "core/path_to.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fixture {

QString plugins_directory() { return path_to().plugins_directory(); }
QString addons_directory() { return path_to().addons_directory(); }

namespace {

void empty(QString const& directory) {
    QFile::setPermissions(directory, QFile::permissions(directory) | QFile::WriteOwner |
                                         QFile::ReadOwner | QFile::ExeOwner);
    QDir dir(directory);
    for (auto const& name :
         dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        QString const path = dir.filePath(name);
        if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink())
            QDir(path).removeRecursively();
        else
            QFile::remove(path);
    }
}

void open_for_others(QString const& path) {
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadOther | QFile::ExeOther);
}

}  // namespace

void clear_bundle() {
    empty(plugins_directory());
    empty(addons_directory());
}

void install_plugin(QString const& built_plugin, QString const& as) {
    QString const target =
        plugins_directory() + "/" + (as.isEmpty() ? QFileInfo(built_plugin).fileName() : as);
    QFile::remove(target);
    QFile::copy(built_plugin, target);
}

void install_addon(QString const& file_name, QByteArray const& content) {
    write_file(addons_directory() + "/" + file_name, content);
}

QByteArray addon(QByteArray const& style, QByteArray const& language, QByteArray const& sections,
                 QByteArray const& EOL) {
    return "NAME=" + style + EOL + "LANGUAGE=" + language + EOL + sections;
}

QByteArray section(QByteArray const& name, QByteArray const& form, QByteArray const& EOL) {
    return "S_NAME=" + name + EOL + "S_BEG" + EOL + form + EOL + "S_END" + EOL;
}

QStringList files_in(QString const& directory) {
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                         QDir::NoDotAndDotDot,
                                     QDir::Name);
}

QByteArray contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write_file(QString const& path, QByteArray const& content) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(content);
}

bool as_unprivileged_user(std::function<bool()> const& check) {
    // The bundle lies in a private temporary directory: open the way down to its files.
    QDir bundle(path_to().languages_n_styles_directory());
    bundle.cdUp();
    open_for_others(bundle.absolutePath());
    open_for_others(path_to().languages_n_styles_directory());
    // Files keep their permissions: tests take read and write bits away on purpose.
    for (auto const& directory : {plugins_directory(), addons_directory()})
        open_for_others(directory);
    pid_t const child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 ||
                                 ::setuid(65534) != 0))
            ::_exit(2);
        ::_exit(check() ? 0 : 1);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child)
        return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace fixture
