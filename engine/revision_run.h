// One revision run, as both drivers perform it: the checks made before any source is touched,
// the steps applied to each file with their counting, and the end. The drivers only add how
// progress, the report and interruption reach the user.
#ifndef STYLE_TARNEL_ENGINE_REVISION_RUN_H
#define STYLE_TARNEL_ENGINE_REVISION_RUN_H

#include "engine/change_record_store.h"
#include "interface_to_language_plugin.h"

#include <QPluginLoader>
#include <QString>
#include <QStringList>

#include <string>

class revision_run {
public:
    explicit revision_run(std::string& report) : report(report) {}

    // In order: the directly named files against the extensions, the plugin, the addon, the
    // addon's forms. False, with the reason written in the report, at the first that fails;
    // otherwise the files to revise are collected.
    bool prepare(std::string const& plugin_file, std::string const& addon_file,
                 std::string const& extensions, QStringList const& paths);

    QStringList const& files() const { return collected; }
    int found() const { return collected.size(); }
    unsigned long revised() const { return revised_count; }
    unsigned long changed() const { return changed_count; }

    // The steps for one file. True when the file reached the progress step: it was read with
    // content and handed to the plugin (whatever came of it). False when it was inaccessible,
    // unreadable, unchanged since its last revision, or empty.
    bool revise(QString const& path);

    // Tells the plugin the run is over, writes the counts in the report, saves the records.
    void finish();

private:
    std::string& report;
    QPluginLoader loader;
    interface_to_language_plugin* plugin = nullptr;
    std::string addon_text;
    QString addon_path;
    quint32 addon_modified = 0;  // UTC seconds, read once before the addon's text
    QString language;
    QString style;
    QStringList collected;
    unsigned long revised_count = 0;
    unsigned long changed_count = 0;
    change_record_store records;
};

#endif
