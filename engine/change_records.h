// Change records: one per revised source file, so that a run skips every file that has not
// changed since it was last revised with the same language, style and unchanged addon.
// Key: the file's absolute, clean path without its leading "/" (a relative path is taken against
// the current directory first); value: [revision time (UTC seconds), language, style, addon
// modification time (UTC seconds)]. Each operation works in the store it is given: a run keeps one
// open for all its files.
#ifndef STYLE_TARNEL_ENGINE_CHANGE_RECORDS_H
#define STYLE_TARNEL_ENGINE_CHANGE_RECORDS_H

#include <QString>

class QSettings;

class save_info_about_changes_of {
public:
    explicit save_info_about_changes_of(QSettings& store) : store(store) {}
    void this_source_file(QString const& path, QString const& language, QString const& style,
                          QString const& addon_path) const;
    // The same with the addon's modification time (UTC seconds) read by the caller: a run reads
    // it once, before it reads the addon's text.
    void this_source_file(QString const& path, QString const& language, QString const& style,
                          quint32 addon_modified) const;

private:
    QSettings& store;
};

class this_source_file {
public:
    explicit this_source_file(QSettings& store) : store(store) {}
    // True only when the record exists, holds four valid values, names this language and style,
    // and neither the file nor the addon was modified after the times it holds (a file touched
    // in the second of its revision still counts as unchanged).
    bool was_not_changed(QString const& path, QString const& language, QString const& style,
                         QString const& addon_path) const;
    // The same with the modification times (UTC seconds) read by the caller: a run takes the
    // file's from the `stat` of its accessibility test and the addon's once.
    bool was_not_changed(QString const& path, quint32 file_modified, QString const& language,
                         QString const& style, quint32 addon_modified) const;

private:
    QSettings& store;
};

class remove_info_about_changes_of {
public:
    explicit remove_info_about_changes_of(QSettings& store) : store(store) {}
    // A file: its record. A directory: every record whose key begins with the directory's key
    // (so /a/lib also clears /a/lib2/x). A missing path: nothing.
    void this_path(QString const& path) const;

private:
    QSettings& store;
};

#endif
