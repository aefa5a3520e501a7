// The files a run has handed to its plugin and not yet got back, and the records it has earned,
// kept on disk as the run goes, so that a run that dies (a crash the process cannot survive, a
// plugin that exits, SIGKILL) keeps its records and does not kill every later run on the same file.
// The settings store holding the records is written whole, so it is synced only every few seconds;
// this is its journal. Each run that keeps records writes its own list beside the records
// ("<records file>.in-hands/<pid>-<ms>"), locked while it lives: a line
// "<language>\t<style>\t<addon stamp>" first, then "+\t<stamp>\t<path>" before a file goes to the
// plugin, "-\t<path>" when it comes back, "=\t<stamp>\t<path>" for a record saved and "x\t<path>"
// for one removed (paths in Base64; appends of one line, which concurrent workers cannot mix). A
// run that ends removes its list once its records are synced. The next run finds the lists whose
// run is gone (their lock is free), saves the records they hold, gives every file that was still
// in the plugin's hands a record with the stamp it had, so that it waits until it changes like a
// file the plugin refused, names it in its report, and removes the list.
#ifndef STYLE_TARNEL_ENGINE_FILES_IN_PLUGIN_HANDS_H
#define STYLE_TARNEL_ENGINE_FILES_IN_PLUGIN_HANDS_H

#include <QString>
#include <QStringList>

class QSettings;

class files_in_plugin_hands {
public:
    // No list at all for a records store without a file.
    files_in_plugin_hands(QSettings& records, QString const& language, QString const& style,
                          QString const& addon_stamp);
    ~files_in_plugin_hands();  // Removes the list: the run ended.
    files_in_plugin_hands(files_in_plugin_hands const&) = delete;
    files_in_plugin_hands& operator=(files_in_plugin_hands const&) = delete;

    // The files of runs that died with them in the plugin's hands, now recorded; their lists go.
    QStringList left_by_runs_that_died() const;

    void given(QString const& path, QString const& stamp) const;
    void taken_back(QString const& path) const;
    void recorded(QString const& path, QString const& stamp) const;
    void forgotten(QString const& path) const;

private:
    QSettings& records;
    QString directory;
    QString list;
    int fd = -1;
};

#endif
