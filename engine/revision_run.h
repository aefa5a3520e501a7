// One revision run, as both drivers perform it: the checks made before any source is touched,
// the loop over the files with the stop request read before each, and the end. The drivers only
// add how progress, the report and the stop request reach the user.
#ifndef STYLE_TARNEL_ENGINE_REVISION_RUN_H
#define STYLE_TARNEL_ENGINE_REVISION_RUN_H

#include "engine/bytes_in_hand.h"
#include "engine/change_record_store.h"
#include "engine/directory_flushes.h"
#include "engine/files_in_plugin_hands.h"
#include "engine/plugin_answer.h"
#include "engine/revision_request.h"
#include "interface_to_language_plugin.h"

#include <QHash>
#include <QPluginLoader>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
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

    // Revises the collected files: on as many workers as the machine has cores (or as
    // STYLE_TARNEL_JOBS says) when the plugin declares that its revise() may run on several
    // threads at once, otherwise on this thread; either way the report, the records and
    // `reached` follow the order of the files. `stop_requested` is asked before every file (and
    // once when there is none); when it answers true no further file is started, the ones under
    // way are finished, the interruption goes into the report and the loop ends. `reached` is
    // called after every file that reached the progress step. True when the run was stopped.
    bool revise_all(std::function<bool()> const& stop_requested,
                    std::function<void(unsigned long revised, int found)> const& reached);

    // Makes the renames of the revised files durable (one flush per directory), tells the plugin
    // the run is over, writes the counts in the report, saves the records.
    void finish();

    // After `prepare`: the plugin's revision of a text in memory, with the run's addon: `revised`,
    // or `refused` (syntax error, failure) or `crashed`, when `result` is unspecified.
    plugin_answer revise_text(std::string const& text, std::string& result);

private:
    struct file_outcome;
    // The steps for one file, on any worker: everything but what the run keeps in order.
    file_outcome revise(QString const& path) const;
    // What the run keeps of one file's outcome, in the order of the files.
    // The plugin's answer for one text: its whole revision, or that of `ranges` (none: whole).
    plugin_answer asked(std::string const& text, std::vector<line_range> const& ranges,
                        std::string& result) const;
    // The changed lines of each collected file, for a request of lines changed in git; false, with
    // the reason written, for a path outside any work tree or a revision git does not know.
    bool changed_lines_found();
    void take(QString const& path, file_outcome& outcome,
              std::function<void(unsigned long, int)> const& reached);

    std::string& report;
    revision_request const request;
    QPluginLoader loader;
    interface_to_language_plugin* plugin = nullptr;
    // The plugin's range interface, for a request of lines.
    interface_to_range_revision* lines_plugin = nullptr;
    std::string addon_text;
    QString addon_stamp;  // taken once, before the addon's text was read
    // Set by the first crash of the plugin (crash_recovery.h): no file is handed to it after that,
    // and it is not told that the run is over.
    mutable std::atomic<bool> plugin_crashed{false};
    QStringList collected;
    // For a request of lines changed in git: each collected file's changed lines (none: not read).
    QHash<QString, std::vector<line_range>> changed_in_git;
    unsigned long revised_count = 0;
    unsigned long changed_count = 0;
    unsigned long failed_count = 0;
    // A run that keeps records: the files in the plugin's hands and the records earned, on disk
    // at once. Declared before the store, so that the store syncs before the list goes.
    std::unique_ptr<files_in_plugin_hands> hands;
    change_record_store records;
    mutable std::mutex records_guard;  // workers read the records while this thread writes them
    // The sources the workers have given to the plugin: the largest goes alone (memory).
    mutable bytes_in_hand sources_in_hand;
    // The directories of the files replaced so far, flushed once each before the run reports.
    mutable directory_flushes renames;
    int worker_count = 1;
};

#endif
