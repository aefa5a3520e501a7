// Change records: one per revised source file, so that a run skips every file that has not
// changed since it was last revised with the same language, style and unchanged addon.
// Key: the file's absolute, clean path without its leading "/" (a relative path is taken against
// the current directory first); value: [the file's stamp, language, style, the addon's stamp],
// where a stamp is "<modification seconds>.<nanoseconds> <size> <inode>" (file_status::stamp):
// the file's as it was read (or, for a file the run rewrote, as its new content reached the disk),
// the addon's as the run read it. Unchanged means both stamps equal, not "not newer": a checkout
// that puts older bytes back with a time in the same second is revised again. A record of the
// older form (times in whole seconds) never equals a stamp, so such a file is revised again.
// Each operation works in the store it is given: a run keeps one open for all its files.
#ifndef STYLE_TARNEL_ENGINE_CHANGE_RECORDS_H
#define STYLE_TARNEL_ENGINE_CHANGE_RECORDS_H

#include <QString>

class QSettings;

class save_info_about_changes_of {
public:
    explicit save_info_about_changes_of(QSettings& store) : store(store) {}
    // With the stamps of the file and the addon as they are now.
    void this_source_file(QString const& path, QString const& language, QString const& style,
                          QString const& addon_path) const;
    // With the stamps the caller took: the file's from the text it revised, the addon's once,
    // before the run read the addon's text.
    void this_source_file(QString const& path, QString const& file_stamp, QString const& language,
                          QString const& style, QString const& addon_stamp) const;

private:
    QSettings& store;
};

class this_source_file {
public:
    explicit this_source_file(QSettings& store) : store(store) {}
    // True only when the record exists, holds four valid values, names this language and style,
    // and both the file's and the addon's stamps equal those it holds.
    bool was_not_changed(QString const& path, QString const& language, QString const& style,
                         QString const& addon_path) const;
    // The same with the stamps taken by the caller: a run takes the file's from the `stat` of its
    // accessibility test and the addon's once.
    bool was_not_changed(QString const& path, QString const& file_stamp, QString const& language,
                         QString const& style, QString const& addon_stamp) const;

private:
    QSettings& store;
};

class remove_info_about_changes_of {
public:
    explicit remove_info_about_changes_of(QSettings& store) : store(store) {}
    // A file: its record. A directory: every record whose key begins with the directory's key
    // (so /a/lib also clears /a/lib2/x). A missing path: nothing.
    void this_path(QString const& path) const;
    // The record of a source file, whatever the file is now (gone, unreadable).
    void this_source_file(QString const& path) const;

private:
    QSettings& store;
};

#endif
