#include "engine/change_records.h"

#include "engine/change_record_store.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QVariantList>

#include <sys/stat.h>

namespace {

QString key_of(QString const& path) { return path.mid(1); }

// Last modification in seconds since the epoch (UTC), straight from the file system: converting
// through a local date and time would cost more than the rest of the test.
quint32 modification_time_of(QString const& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return 0;
    return static_cast<quint32>(status.st_mtime);
}

quint32 now() { return static_cast<quint32>(QDateTime::currentSecsSinceEpoch()); }

// Runs `use` with the given store, or with the records' own store opened (and synced) for it.
template <typename Use>
auto with_store(QSettings* store, Use use) {
    if (store != nullptr)
        return use(*store);
    change_record_store own;
    return use(*own.settings());
}

}  // namespace

void save_info_about_changes_of::this_source_file(QString const& path, QString const& language,
                                                  QString const& style,
                                                  QString const& addon_path) const {
    QVariantList const value{now(), language, style, modification_time_of(addon_path)};
    with_store(store, [&](QSettings& settings) { settings.setValue(key_of(path), value); });
}

bool this_source_file::was_not_changed(QString const& path, QString const& language,
                                       QString const& style, QString const& addon_path) const {
    return with_store(store, [&](QSettings& settings) {
        QVariant const stored = settings.value(key_of(path));
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
        return modification_time_of(path) <= revision_time &&
               modification_time_of(addon_path) <= addon_time;
    });
}

void remove_info_about_changes_of::this_path(QString const& path) const {
    QFileInfo const info(path);
    if (!info.exists())
        return;
    QString const key = key_of(path);
    with_store(store, [&](QSettings& settings) {
        if (info.isFile()) {
            settings.remove(key);
            return;
        }
        if (!info.isDir())
            return;
        // Removing a key removes the keys below it too, so one removal per name that continues
        // the prefix (the directory itself, or a sibling such as "lib2") clears them all; one
        // removal per record would cost the square of their number.
        QStringList removed;
        for (auto const& stored : settings.allKeys()) {
            if (!stored.startsWith(key))
                continue;
            QString const group = key + stored.mid(key.size()).section('/', 0, 0);
            if (removed.isEmpty() || removed.last() != group) {
                settings.remove(group);
                removed << group;
            }
        }
    });
}
