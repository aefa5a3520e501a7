#include "engine/file_status.h"

#include <QFile>

#include <unistd.h>

file_status::file_status(QString const& path)
    : native_path(QFile::encodeName(path)),
      found(!native_path.isEmpty() && ::stat(native_path.constData(), &status) == 0) {}

file_status::file_status(QByteArray const& native_path, struct stat const& status)
    : native_path(native_path), status(status), found(true) {}

bool file_status::is_readable_and_writable_file() const {
    return found && S_ISREG(status.st_mode) && ::access(native_path.constData(), R_OK | W_OK) == 0;
}

bool file_status::is_readable_file() const {
    return found && S_ISREG(status.st_mode) && ::access(native_path.constData(), R_OK) == 0;
}

quint32 file_status::modification_time() const {
    return found ? static_cast<quint32>(status.st_mtim.tv_sec) : 0;
}

QString file_status::stamp() const {
    if (!found)
        return QString();
    return QString("%1.%2 %3 %4")
        .arg(static_cast<qint64>(status.st_mtim.tv_sec))
        .arg(static_cast<qint64>(status.st_mtim.tv_nsec), 9, 10, QChar('0'))
        .arg(static_cast<qint64>(status.st_size))
        .arg(static_cast<quint64>(status.st_ino));
}

bool file_status::operator==(file_status const& other) const {
    if (!found || !other.found)
        return found == other.found;
    return status.st_ino == other.status.st_ino && status.st_dev == other.status.st_dev &&
           status.st_size == other.status.st_size &&
           status.st_mtim.tv_sec == other.status.st_mtim.tv_sec &&
           status.st_mtim.tv_nsec == other.status.st_mtim.tv_nsec;
}

bool file_status::same_file_as(file_status const& other) const {
    return found && other.found && status.st_ino == other.status.st_ino && status.st_dev == other.status.st_dev;
}
