// What a revision run is given by the kernel: where its plugin and addon are, the files to
// revise, where the change records live, and the manual that an invalid addon points to.
#ifndef STYLE_TARNEL_ENGINE_REVISION_REQUEST_H
#define STYLE_TARNEL_ENGINE_REVISION_REQUEST_H

#include "engine/change_record_store.h"
#include "engine/ignore_request.h"
#include "interface_to_language_plugin.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

// Which lines of each file a run revises: all of them, the ranges given (of the run's one file or
// text), or those that differ in git from a revision.
struct lines_to_revise {
    std::vector<line_range> given;
    // A revision as git names it ("HEAD", "origin/main"); empty: not asked.
    std::string changed_since;

    bool all() const { return given.empty() && changed_since.empty(); }
};

struct revision_request {
    // The names inside the addon, which the change records keep.
    QString language;
    QString style;
    QString plugins_directory;
    // A bare file name in the plugins directory; the language's own name when no plugin was
    // found, so that the report says which plugin the run missed.
    std::string plugin_file;
    QString addons_directory;
    // A bare file name in the addons directory; when no addon was found, the name such an addon
    // would have.
    std::string addon_file;
    // Without dots, separated by single spaces (UTF-8).
    std::string extensions;
    // Absolute paths of files and directories.
    QStringList paths;
    // What the walk of a directory leaves out; a file named in `paths` is always revised.
    ignore_request ignoring;
    // No progress line on standard error, even on a terminal.
    bool quiet = false;
    records_location records;
    // The web address of the manual on writing addons.
    std::string addon_manual;

    // A check: the run writes no file and no change record, and a readable file need not be
    // writable. Each file whose revised text differs is named in the report and counted as
    // changed, and handed to `would_change` (when set) with both texts, from the run's thread.
    bool writes_nothing = false;
    std::function<void(QString const& path, std::string const& text, std::string const& revised)> would_change;
    // The records are not asked: every file is revised (a check's --force, which must not forget
    // them).
    bool records_ignored = false;

    // Which lines of each file are revised; all but whole files go through the plugin's range
    // interface (a plugin without it is refused). Such a run neither asks nor keeps change
    // records: a file revised in part is not "unchanged since its last revision". A file with no
    // changed line is found but not read.
    lines_to_revise lines;

    bool keeps_records() const { return !writes_nothing && lines.all(); }
    bool asks_records() const { return !records_ignored && lines.all(); }
};

#endif
