#include "engine/change_records.h"

#include "engine/file_status.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QVariantList>

namespace {

// Settings keys hold no leading "/"; "a/../b", "./b" and "b" seen from another directory are one
// file and must be one key.
QString key_of(QString const& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath()).mid(1);
}

// Last modification in seconds since the epoch (UTC), straight from the file system: converting
// through a local date and time would cost more than the rest of the test.
quint32 modification_time_of(QString const& path) { return file_status(path).modification_time(); }

quint32 now() { return static_cast<quint32>(QDateTime::currentSecsSinceEpoch()); }

}  // namespace

void save_info_about_changes_of::this_source_file(QString const& path, QString const& language,
                                                  QString const& style,
                                                  QString const& addon_path) const {
    this_source_file(path, language, style, modification_time_of(addon_path));
}

void save_info_about_changes_of::this_source_file(QString const& path, QString const& language,
                                                  QString const& style,
                                                  quint32 addon_modified) const {
    QVariantList const value{now(), language, style, addon_modified};
    store.setValue(key_of(path), value);
}

bool this_source_file::was_not_changed(QString const& path, QString const& language,
                                       QString const& style, QString const& addon_path) const {
    quint32 const file_modified = modification_time_of(path);
    return was_not_changed(path, file_modified, language, style, modification_time_of(addon_path));
}

bool this_source_file::was_not_changed(QString const& path, quint32 file_modified,
                                       QString const& language, QString const& style,
                                       quint32 addon_modified) const {
    QVariant const stored = store.value(key_of(path));
    if (!stored.isValid())
        return false;
    QVariantList const record = stored.toList();
    if (record.size() < 4)
        return false;
    for (int i = 0; i < 4; ++i)
        if (!record[i].isValid())
            return false;
    if (record[1].toString() != language || record[2].toString() != style)
        return false;
    bool revision_ok = false, addon_ok = false;
    quint32 const revision_time = record[0].toUInt(&revision_ok);
    quint32 const addon_time = record[3].toUInt(&addon_ok);
    if (!revision_ok || !addon_ok)
        return false;
    return file_modified <= revision_time && addon_modified <= addon_time;
}

void remove_info_about_changes_of::this_path(QString const& path) const {
    QFileInfo const info(path);
    if (!info.exists())
        return;
    QString const key = key_of(path);
    if (info.isFile()) {
        store.remove(key);
        return;
    }
    if (!info.isDir())
        return;
    // Removing a key removes the keys below it too, so one removal per name that continues the
    // prefix (the directory itself, or a sibling such as "lib2") clears them all; one removal per
    // record would cost the square of their number.
    QStringList removed;
    for (auto const& stored : store.allKeys()) {
        if (!stored.startsWith(key))
            continue;
        QString const group = key + stored.mid(key.size()).section('/', 0, 0);
        if (removed.isEmpty() || removed.last() != group) {
            store.remove(group);
            removed << group;
        }
    }
}
