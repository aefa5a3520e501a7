#include "engine/revision_run.h"

#include "engine/change_records.h"
#include "engine/changed_lines.h"
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
#include <map>
#include <memory>
#include <mutex>

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

// The lock of the calls into the plugin of that file, for the whole process: a plugin that does
// not say that revise() may run on several threads at once is called from one thread at a time,
// also when several runs call it at once (the window previews a file, counts the task's changes
// and revises at the same time).
std::mutex& calls_into_plugin(QString const& plugin_file) {
    static std::mutex guard;
    static std::map<QString, std::unique_ptr<std::mutex>> locks;
    std::lock_guard<std::mutex> const hold(guard);
    std::unique_ptr<std::mutex>& lock = locks[plugin_file];
    if (!lock)
        lock = std::make_unique<std::mutex>();
    return *lock;
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
    if (!request.lines.all()) {
        lines_plugin = plugin_obtainer(loader).range_revision();
        if (lines_plugin == nullptr) {
            write.about_plugin_without_line_ranges(request.language);
            return false;
        }
    }
    QString const addon_path =
        request.addons_directory + QDir::separator() + QString::fromStdString(request.addon_file);
    // Taken before the text, so that the records never hold the stamp of a newer addon than the
    // one the run uses: an addon saved in between only makes the next run revise again.
    addon_stamp = file_status(addon_path).stamp();
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
    if (request.keeps_records()) {
        // A file that was in the plugin's hands when an earlier run died waits until it changes.
        std::lock_guard<std::mutex> const lock(records_guard);
        hands = std::make_unique<files_in_plugin_hands>(records.settings(), request.language, request.style,
                                                        addon_stamp);
        for (QString const& left : hands->left_by_runs_that_died())
            write.about_file_left_by_a_run_that_died(left);
    }
    collected = obtain_full_file_paths_from(request.paths).following(request.ignoring).with(QString::fromStdString(request.extensions));
    if (!request.lines.changed_since.empty() && !changed_lines_found())
        return false;
    worker_count = workers_for(loader);
    return true;
}

bool revision_run::changed_lines_found() {
    changed_lines changed(request.lines.changed_since);
    for (QString const& path : request.paths) {
        switch (changed.prepared_for(path)) {
        case changed_lines_fault::none:
            break;
        case changed_lines_fault::outside_work_tree:
            write_in(report).about_path_outside_git(path);
            return false;
        case changed_lines_fault::unknown_revision:
            write_in(report).about_revision_unknown_to_git(request.lines.changed_since, path);
            return false;
        }
    }
    for (QString const& file : collected)
        changed_in_git.insert(file, changed.of(file));
    return true;
}

struct revision_run::file_outcome {
    std::string report;     // what the report says of the file
    bool read = false;      // counts as revised
    bool reached = false;   // reached the progress step
    bool changed = false;   // changed, or would be in a run that writes nothing
    bool failed = false;    // could not be read, written or revised
    // The stamp of the text the file holds now, as the run read or wrote it, for its change
    // record; empty: no record, and an old one goes.
    QString stamp;
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
    // One `stat` for the accessibility test and the records.
    file_status const before(path);
    if (!(request.writes_nothing ? before.is_readable_file() : before.is_readable_and_writable_file()))
        return failure();
    if (request.asks_records()) {
        QString const stamp = before.stamp();  // made outside the lock the workers share
        std::lock_guard<std::mutex> const lock(records_guard);
        if (this_source_file(records.settings())
                .was_not_changed(path, stamp, request.language, request.style, addon_stamp))
            return outcome;
    }
    // A rename would give only this name the new text; see write_to.h.
    if (!request.writes_nothing && before.has_several_names()) {
        write.about_file_with_several_names(path);
        outcome.failed = true;
        return outcome;
    }
    if (plugin_crashed) {
        write.about_file_left_after_a_crash(path, request.plugin_file);
        outcome.failed = true;
        return outcome;
    }
    std::vector<line_range> ranges = request.lines.given;
    if (!request.lines.changed_since.empty()) {
        ranges = changed_in_git.value(path);
        if (ranges.empty())  // found, but no line of it to revise
            return outcome;
    }
    std::string text;
    file_status as_read;
    if (!read_from(path).to(text, as_read))
        return failure();
    outcome.read = true;
    if (text.empty())
        return outcome;

    outcome.reached = true;
    std::string result;
    // A record keeps what the run read, so a file saved since is revised again by the next run.
    // A run that writes nothing keeps no records.
    QString const stamp_as_read = request.keeps_records() ? as_read.stamp() : QString();
    if (!request.lines.changed_since.empty())
        ranges = clamped_to(text, ranges);
    plugin_answer const answer = [&] {
        // A file waiting for its turn is not yet in the plugin's hands.
        bytes_in_hand::held const in_hand = sources_in_hand.taken_for(text.size());
        if (hands)
            hands->given(path, stamp_as_read);
        return asked(text, ranges, result);
    }();
    if (hands)
        hands->taken_back(path);
    if (answer == plugin_answer::crashed) {
        plugin_crashed = true;
        write.about_plugin_crash_on(path, request.plugin_file);
        outcome.failed = true;
        // Like a refusal, the file waits until it changes: the next run does not meet the crash.
        outcome.stamp = stamp_as_read;
        return outcome;
    }
    // Saved, edited or removed by someone else while the plugin worked on it: the answer is
    // about text that is gone, writing it would undo the edit. The exchange below catches a save
    // that comes later; this only spares the write.
    file_status const now(path);
    if (now != as_read) {
        if (now.exists())
            write.about_file_edited_meanwhile(path);
        else
            write.about_invalid_file(path);
        outcome.failed = true;
        return outcome;
    }
    if (answer == plugin_answer::refused) {
        write.about_syntax_error_in(path);
        outcome.failed = true;
        // Also after a refusal: such a file waits until it, the style or the addon changes.
        outcome.stamp = stamp_as_read;
    } else if (result != text && request.writes_nothing) {
        write.about_file_that_would_change(path);
        outcome.changed = true;
        if (request.would_change) {
            outcome.text = std::move(text);
            outcome.revised = std::move(result);
        }
    } else if (result != text) {
        file_status written;
        switch (write_to(path, renames).from(result, text, as_read, written)) {
        case replacement::done:
            outcome.changed = true;
            // The new content as it reached the disk.
            outcome.stamp = written.stamp();
            break;
        case replacement::edited_meanwhile:
            write.about_file_edited_meanwhile(path);
            outcome.failed = true;
            break;
        case replacement::failed:
            failure();
            break;
        }
    } else {
        outcome.stamp = stamp_as_read;
    }
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
    if (request.keeps_records() && outcome.read) {
        std::lock_guard<std::mutex> const lock(records_guard);
        if (!outcome.stamp.isEmpty()) {
            save_info_about_changes_of(records.settings())
                .this_source_file(path, outcome.stamp, request.language, request.style, addon_stamp);
            if (hands)
                hands->recorded(path, outcome.stamp);
        } else {
            remove_info_about_changes_of(records.settings()).this_source_file(path);
            if (hands)
                hands->forgotten(path);
        }
        records.sync_if_due();
    }
    if (outcome.reached)
        reached(revised_count, found());
}

void revision_run::finish() {
    renames.make_them();
    if (!plugin_crashed) {
        try {
            plugin->end_of_revision();
        } catch (...) {
            // The files are revised by now; a plugin failing to tidy up changes nothing for them.
        }
    }
    if (request.writes_nothing)
        write_in(report).finish_info_of_check(found(), revised_count, changed_count);
    else
        write_in(report).finish_info(found(), revised_count, changed_count);
    records.sync();
    // Every record is in the store's file now: nothing is in the plugin's hands.
    hands.reset();
}

plugin_answer revision_run::revise_text(std::string const& text, std::string& result) {
    if (text.empty()) {
        result.clear();
        return plugin_answer::revised;
    }
    plugin_answer const answer = asked(text, request.lines.given, result);
    if (answer == plugin_answer::crashed)
        plugin_crashed = true;
    return answer;
}

plugin_answer revision_run::asked(std::string const& text, std::vector<line_range> const& ranges,
                                  std::string& result) const {
    std::unique_lock<std::mutex> one_at_a_time;
    if (worker_count == 1)
        one_at_a_time = std::unique_lock<std::mutex>(calls_into_plugin(loader.fileName()));
    if (lines_plugin != nullptr && !ranges.empty())
        return ask_for_lines(*lines_plugin, text, addon_text, ranges, result);
    return ask(*plugin, text, addon_text, result);
}
