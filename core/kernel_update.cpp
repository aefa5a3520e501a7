// kernel: replacing the running executable by a newer file, in effect from the next start; the
// old one stays beside it under a "~" name until then.
#include "core/kernel.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

bool kernel::apply(std::string const& path_to_new_executable) const {
    QString const current = QCoreApplication::applicationFilePath();
    QString const backup = current + "~";
    if (QFile::exists(backup))
        QFile::remove(backup);
    if (!QFile::rename(current, backup))
        return false;
    if (QFile::exists(current))
        QFile::remove(current);
    if (QFile::copy(QString::fromStdString(path_to_new_executable), current))
        return true;
    // Never leave the program without its executable: the old one goes back in place.
    QFile::remove(current);
    QFile::rename(backup, current);
    return false;
}

void kernel::remove_old_executable_if_required() const {
    // Only the backup that `apply` made: other files ending in "~" beside the executable are
    // somebody else's.
    QString const backup = QCoreApplication::applicationFilePath() + "~";
    if (QFileInfo(backup).isFile())
        QFile::remove(backup);
}
