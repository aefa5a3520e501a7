#include "engine/revision_run.h"

#include "engine/change_records.h"
#include "engine/file_collection.h"
#include "engine/file_status.h"
#include "engine/format_of_this.h"
#include "engine/plugin_answer.h"
#include "engine/plugin_obtainer.h"
#include "engine/read_from.h"
#include "engine/work_in_order.h"
#include "engine/write_in.h"
#include "engine/write_to.h"

#include <QDir>
#include <QJsonObject>
#include <QThread>

#include <algorithm>

namespace {

// One worker per core, or as many as STYLE_TARNEL_JOBS says, for a plugin that declares in its
// metadata ("reentrant": true) that its revise() may run on several threads at once; one for
// any other.
int workers_for(QPluginLoader const& loader) {
    if (!loader.metaData().value("MetaData").toObject().value("reentrant").toBool())
        return 1;
    bool given = false;
    int const wished = qEnvironmentVariableIntValue("STYLE_TARNEL_JOBS", &given);
    if (given && wished > 0)
        return wished;
    return std::max(1, QThread::idealThreadCount());
}

}  // namespace

revision_run::revision_run(std::string& report, revision_request request)
    : report(report), request(std::move(request)), records(this->request.records) {}

bool revision_run::prepare() {
    write_in const write(report);
    if (there_are_some(request.paths).with_extensions_that_not_corresponds_to(request.extensions)) {
        write.about_paths_with_unallowed(request.extensions);
        return false;
    }
    QString const plugin_path =
        request.plugins_directory + QDir::separator() + QString::fromStdString(request.plugin_file);
    plugin = plugin_obtainer(loader)(plugin_path);
    if (plugin == nullptr) {
        std::string const version = plugin_interface_version_of(plugin_path);
        if (!version.empty() && version != STYLE_TARNEL_INTERFACE_VERSION)
            write.about_plugin_interface_version(request.plugin_file, version);
        else
            write.about_problem_with_plugin(request.plugin_file);
        return false;
    }
    QString const addon_path =
        request.addons_directory + QDir::separator() + QString::fromStdString(request.addon_file);
    // Read before the text, so that the records never hold the time of a newer addon than the
    // one the run uses: an addon saved in between only makes the next run revise again.
    addon_modified = file_status(addon_path).modification_time();
    if (!read_from(addon_path).to(addon_text)) {
        write.about_problem_with_addon(request.addon_file);
        return false;
    }
    std::string bad_structure;
    switch (format_of_this(addon_text).based_on(plugin, bad_structure)) {
    case format_check::plugin_failed:
        write.about_plugin_without_forms(request.plugin_file);
        return false;
    case format_check::invalid_form:
        write.about_invalid_format_of_addon(bad_structure, request.addon_file, request.addon_manual);
        return false;
    case format_check::valid:
        break;
    }
    collected = obtain_full_file_paths_from(request.paths).following(request.ignoring).with(QString::fromStdString(request.extensions));
    worker_count = workers_for(loader);
    return true;
}

struct revision_run::file_outcome {
    std::string report;     // what the report says of the file
    bool read = false;      // counts as revised
    bool reached = false;   // reached the progress step
    bool changed = false;   // changed, or would be in a run that writes nothing
    bool failed = false;    // could not be read, written or revised
    bool recorded = false;  // gets a change record
    // For a run that writes nothing and hands on what would change: the file's text and its
    // revision.
    std::string text;
    std::string revised;
};

bool revision_run::revise_all(std::function<bool()> const& stop_requested,
                              std::function<void(unsigned long, int)> const& reached) {
    // Asked before every file, so that a stop during the collection of a large tree or among
    // skipped files ends the run as soon as one during a revision.
    bool stopped = collected.isEmpty() && stop_requested();
    if (!collected.isEmpty()) {
        stopped = work_in_order<file_outcome>(
                      [&](int item) { return revise(collected[item]); },
                      [&](int item, file_outcome& outcome) { take(collected[item], outcome, reached); },
                      stop_requested)
                      .on(worker_count, found());
    }
    if (stopped)
        write_in(report).about_interruption();
    return stopped;
}

revision_run::file_outcome revision_run::revise(QString const& path) const {
    file_outcome outcome;
    write_in const write(outcome.report);
    auto failure = [&] {
        write.about_invalid_file(path);
        outcome.failed = true;
        return outcome;
    };
    // One `stat` for the accessibility test, the records and the check for edits by others.
    file_status const before(path);
    if (!(request.writes_nothing ? before.is_readable_file() : before.is_readable_and_writable_file()))
        return failure();
    if (!request.records_ignored) {
        std::lock_guard<std::mutex> const lock(records_guard);
        if (this_source_file(records.settings())
                .was_not_changed(path, before.modification_time(), request.language, request.style,
                                 addon_modified))
            return outcome;
    }
    std::string text;
    if (!read_from(path).to(text))
        return failure();
    outcome.read = true;
    if (text.empty())
        return outcome;

    outcome.reached = true;
    std::string result;
    plugin_answer const answer = ask(*plugin, text, addon_text, result);
    // Saved, edited or removed by someone else while the plugin worked on it: the answer is
    // about text that is gone, writing it would undo the edit, and a record would hide the new
    // content from the next run.
    if (file_status(path) != before)
        return failure();
    if (answer == plugin_answer::refused) {
        write.about_syntax_error_in(path);
        outcome.failed = true;
    } else if (result != text && request.writes_nothing) {
        write.about_file_that_would_change(path);
        outcome.changed = true;
        if (request.would_change) {
            outcome.text = std::move(text);
            outcome.revised = std::move(result);
        }
    } else if (result != text) {
        if (write_to(path).from(result))
            outcome.changed = true;
        else
            failure();
    }
    // Also after a refusal or a failed write: such a file waits until it, the style or the
    // addon changes. A run that writes nothing keeps no records.
    outcome.recorded = !request.writes_nothing;
    return outcome;
}

void revision_run::take(QString const& path, file_outcome& outcome,
                        std::function<void(unsigned long, int)> const& reached) {
    report += outcome.report;
    revised_count += outcome.read ? 1 : 0;
    changed_count += outcome.changed ? 1 : 0;
    failed_count += outcome.failed ? 1 : 0;
    if (outcome.changed && request.writes_nothing && request.would_change)
        request.would_change(path, outcome.text, outcome.revised);
    if (outcome.recorded) {
        std::lock_guard<std::mutex> const lock(records_guard);
        save_info_about_changes_of(records.settings())
            .this_source_file(path, request.language, request.style, addon_modified);
        records.sync_if_due();
    }
    if (outcome.reached)
        reached(revised_count, found());
}

void revision_run::finish() {
    try {
        plugin->end_of_revision();
    } catch (...) {
        // The files are revised by now; a plugin failing to tidy up changes nothing for them.
    }
    if (request.writes_nothing)
        write_in(report).finish_info_of_check(found(), revised_count, changed_count);
    else
        write_in(report).finish_info(found(), revised_count, changed_count);
    records.sync();
}

bool revision_run::revise_text(std::string const& text, std::string& result) {
    if (text.empty()) {
        result.clear();
        return true;
    }
    return ask(*plugin, text, addon_text, result) == plugin_answer::revised;
}
