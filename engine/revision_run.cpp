#include "engine/revision_run.h"

#include "engine/change_records.h"
#include "engine/file_collection.h"
#include "engine/file_status.h"
#include "engine/format_of_this.h"
#include "engine/plugin_obtainer.h"
#include "engine/read_from.h"
#include "engine/traits_of.h"
#include "engine/write_in.h"
#include "engine/write_to.h"

#include <QDir>

#include <algorithm>

namespace {

// White space in any encoding: the zero bytes of UTF-16 and UTF-32 spaces count as part of them.
bool holds_only_white_space(std::string const& text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f' || c == '\0';
    });
}

enum class plugin_answer { revised, refused };

// The plugin's result for `text`; a plugin that throws, returns the syntax-error text, or
// returns nothing for a text with content refuses it.
plugin_answer ask(interface_to_language_plugin* plugin, std::string const& text,
                  std::string const& addon_text, std::string& result) {
    try {
        result = plugin->revise(text, addon_text, detail::traits_of()(text));
    } catch (...) {
        return plugin_answer::refused;
    }
    if (result == STYLE_TARNEL_SYNTAX_ERROR_TEXT)
        return plugin_answer::refused;
    if (result.empty() && !holds_only_white_space(text))
        return plugin_answer::refused;
    return plugin_answer::revised;
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
    collected = obtain_full_file_paths_from(request.paths).with(QString::fromStdString(request.extensions));
    return true;
}

bool revision_run::revise_all(std::function<bool()> const& stop_requested,
                              std::function<void(unsigned long, int)> const& reached) {
    // Read before every file, so that a stop during the collection of a large tree or among
    // skipped files ends the run as soon as one during a revision.
    bool stopped = collected.isEmpty() && stop_requested();
    for (auto const& path : collected) {
        if ((stopped = stop_requested()))
            break;
        if (revise(path))
            reached(revised_count, found());
    }
    if (stopped)
        write_in(report).about_interruption();
    return stopped;
}

bool revision_run::revise(QString const& path) {
    write_in const write(report);
    // One `stat` for the accessibility test, the records and the check for edits by others.
    file_status const before(path);
    if (!(request.writes_nothing ? before.is_readable_file() : before.is_readable_and_writable_file())) {
        write.about_invalid_file(path);
        ++failed_count;
        return false;
    }
    if (!request.records_ignored &&
        this_source_file(records.settings())
            .was_not_changed(path, before.modification_time(), request.language, request.style,
                             addon_modified))
        return false;
    std::string text;
    if (!read_from(path).to(text)) {
        write.about_invalid_file(path);
        ++failed_count;
        return false;
    }
    ++revised_count;
    if (text.empty())
        return false;

    std::string result;
    plugin_answer const answer = ask(plugin, text, addon_text, result);
    if (file_status(path) != before) {
        // Saved, edited or removed by someone else while the plugin worked on it: the answer is
        // about text that is gone, writing it would undo the edit, and a record would hide the
        // new content from the next run.
        write.about_invalid_file(path);
        ++failed_count;
        return true;
    }
    if (answer == plugin_answer::refused) {
        write.about_syntax_error_in(path);
        ++failed_count;
    } else if (result != text && request.writes_nothing) {
        write.about_file_that_would_change(path);
        ++changed_count;
        if (request.would_change)
            request.would_change(path, text, result);
    } else if (result != text) {
        if (write_to(path).from(result))
            ++changed_count;
        else {
            write.about_invalid_file(path);
            ++failed_count;
        }
    }
    if (request.writes_nothing)
        return true;
    // Also after a refusal or a failed write: such a file waits until it, the style or the
    // addon changes.
    save_info_about_changes_of(records.settings())
        .this_source_file(path, request.language, request.style, addon_modified);
    records.sync_if_due();
    return true;
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
    return ask(plugin, text, addon_text, result) == plugin_answer::revised;
}
