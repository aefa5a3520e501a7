// One revision run, as both drivers perform it: the checks made before any source is touched,
// the loop over the files with the stop request read before each, and the end. The drivers only
// add how progress, the report and the stop request reach the user.
#ifndef STYLE_TARNEL_ENGINE_REVISION_RUN_H
#define STYLE_TARNEL_ENGINE_REVISION_RUN_H

#include "engine/change_record_store.h"
#include "engine/revision_request.h"
#include "interface_to_language_plugin.h"

#include <QPluginLoader>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>

class revision_run {
public:
    revision_run(std::string& report, revision_request request);

    // In order: the directly named files against the extensions, the plugin, the addon, the
    // addon's forms. False, with the reason written in the report, at the first that fails;
    // otherwise the files to revise are collected.
    bool prepare();

    QStringList const& files() const { return collected; }
    int found() const { return collected.size(); }
    unsigned long revised() const { return revised_count; }
    unsigned long changed() const { return changed_count; }
    // Files that could not be read, written or revised (each named in the report).
    unsigned long failed() const { return failed_count; }

    // Revises the collected files in order. `stop_requested` is asked before every file (and once
    // when there is none); when it answers true the interruption goes into the report and the
    // loop ends. `reached` is called after every file that reached the progress step. True when
    // the run was stopped.
    bool revise_all(std::function<bool()> const& stop_requested,
                    std::function<void(unsigned long revised, int found)> const& reached);

    // The steps for one file. True when the file reached the progress step: it was read with
    // content and handed to the plugin (whatever came of it). False when it was inaccessible,
    // unreadable, unchanged since its last revision, or empty.
    bool revise(QString const& path);

    // Tells the plugin the run is over, writes the counts in the report, saves the records.
    void finish();

    // After `prepare`: the plugin's revision of a text in memory, with the run's addon. False when
    // the plugin refuses it (syntax error, failure); `result` is then unspecified.
    bool revise_text(std::string const& text, std::string& result);

private:
    std::string& report;
    revision_request const request;
    QPluginLoader loader;
    interface_to_language_plugin* plugin = nullptr;
    std::string addon_text;
    quint32 addon_modified = 0;  // UTC seconds, read once before the addon's text
    QStringList collected;
    unsigned long revised_count = 0;
    unsigned long changed_count = 0;
    unsigned long failed_count = 0;
    change_record_store records;
};

#endif
