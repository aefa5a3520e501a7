#include "engine/change_records.h"

#include "engine/file_status.h"

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

QString stamp_of(QString const& path) { return file_status(path).stamp(); }

}  // namespace

void save_info_about_changes_of::this_source_file(QString const& path, QString const& language,
                                                  QString const& style,
                                                  QString const& addon_path) const {
    this_source_file(path, stamp_of(path), language, style, stamp_of(addon_path));
}

void save_info_about_changes_of::this_source_file(QString const& path, QString const& file_stamp,
                                                  QString const& language, QString const& style,
                                                  QString const& addon_stamp) const {
    QVariantList const value{file_stamp, language, style, addon_stamp};
    store.setValue(key_of(path), value);
}

bool this_source_file::was_not_changed(QString const& path, QString const& language,
                                       QString const& style, QString const& addon_path) const {
    return was_not_changed(path, stamp_of(path), language, style, stamp_of(addon_path));
}

bool this_source_file::was_not_changed(QString const& path, QString const& file_stamp,
                                       QString const& language, QString const& style,
                                       QString const& addon_stamp) const {
    if (file_stamp.isEmpty() || addon_stamp.isEmpty())
        return false;
    QVariant const stored = store.value(key_of(path));
    if (!stored.isValid())
        return false;
    QVariantList const record = stored.toList();
    if (record.size() < 4)
        return false;
    for (int i = 0; i < 4; ++i)
        if (!record[i].isValid())
            return false;
    // Plain text comparisons: a record of whole seconds, or anything else damaged, is no stamp.
    return record[1].toString() == language && record[2].toString() == style &&
           record[0].toString() == file_stamp && record[3].toString() == addon_stamp;
}

void remove_info_about_changes_of::this_source_file(QString const& path) const { store.remove(key_of(path)); }

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
