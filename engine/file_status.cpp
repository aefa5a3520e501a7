#include "engine/file_status.h"

#include <QFile>

#include <unistd.h>

file_status::file_status(QString const& path)
    : native_path(QFile::encodeName(path)),
      found(!native_path.isEmpty() && ::stat(native_path.constData(), &status) == 0) {}

bool file_status::is_readable_and_writable_file() const {
    return found && S_ISREG(status.st_mode) && ::access(native_path.constData(), R_OK | W_OK) == 0;
}

bool file_status::is_readable_file() const {
    return found && S_ISREG(status.st_mode) && ::access(native_path.constData(), R_OK) == 0;
}

quint32 file_status::modification_time() const {
    return found ? static_cast<quint32>(status.st_mtim.tv_sec) : 0;
}

bool file_status::operator==(file_status const& other) const {
    if (!found || !other.found)
        return found == other.found;
    return status.st_size == other.status.st_size &&
           status.st_mtim.tv_sec == other.status.st_mtim.tv_sec &&
           status.st_mtim.tv_nsec == other.status.st_mtim.tv_nsec;
}
