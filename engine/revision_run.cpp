#include "engine/revision_run.h"

#include "core/format_of_this.h"
#include "core/path_to.h"
#include "core/style_addon.h"
#include "engine/change_records.h"
#include "engine/file_collection.h"
#include "engine/plugin_obtainer.h"
#include "engine/read_from.h"
#include "engine/traits_of.h"
#include "engine/write_in.h"
#include "engine/write_to.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// White space in any encoding: the zero bytes of UTF-16 and UTF-32 spaces count as part of them.
bool holds_only_white_space(std::string const& text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f' || c == '\0';
    });
}

// A file's size and time of last change: what tells that someone else wrote it meanwhile.
struct file_state {
    qint64 size;
    QDateTime modified;
    bool operator!=(file_state const& other) const { return size != other.size || modified != other.modified; }
};

file_state state_of(QFileInfo const& info) { return {info.size(), info.lastModified()}; }

// Whether the file at `path` is gone or no longer the one read in state `before`.
bool changed_since(file_state const& before, QString const& path) {
    QFileInfo const now(path);
    return !now.exists() || state_of(now) != before;
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

bool revision_run::prepare(std::string const& plugin_file, std::string const& addon_file,
                           std::string const& extensions, QStringList const& paths) {
    write_in const write(report);
    if (there_are_some(paths).with_extensions_that_not_corresponds_to(extensions)) {
        write.about_paths_with_unallowed(extensions);
        return false;
    }
    plugin = plugin_obtainer(loader)(plugin_file);
    if (plugin == nullptr) {
        write.about_problem_with_plugin(plugin_file);
        return false;
    }
    addon_path = path_to().addons_directory() + QDir::separator() + QString::fromStdString(addon_file);
    if (!read_from(addon_path).to(addon_text)) {
        write.about_problem_with_addon(addon_file);
        return false;
    }
    std::string bad_structure;
    if (format_of_this(addon_text).is_invalid_based_on(plugin, bad_structure)) {
        write.about_invalid_format_of_addon(bad_structure, addon_file);
        return false;
    }
    // From the addon as the catalogue reads it, so that an addon saved in UTF-16 names its style.
    style_description const description = obtain_style_description().from_raw(addon_path);
    language = QString::fromStdString(description.language);
    style = QString::fromStdString(description.style);
    collected = obtain_full_file_paths_from(paths).with(QString::fromStdString(extensions));
    return true;
}

bool revision_run::revise(QString const& path) {
    write_in const write(report);
    QFileInfo const info(path);
    if (!info.exists() || !info.isFile() || !info.isReadable() || !info.isWritable()) {
        write.about_invalid_file(path);
        return false;
    }
    if (this_source_file(records.settings()).was_not_changed(path, language, style, addon_path))
        return false;
    file_state const before = state_of(info);
    std::string text;
    if (!read_from(path).to(text)) {
        write.about_invalid_file(path);
        return false;
    }
    ++revised_count;
    if (text.empty())
        return false;

    std::string result;
    plugin_answer const answer = ask(plugin, text, addon_text, result);
    if (changed_since(before, path)) {
        // Saved, edited or removed by someone else while the plugin worked on it: the answer is
        // about text that is gone, writing it would undo the edit, and a record would hide the
        // new content from the next run.
        write.about_invalid_file(path);
        return true;
    }
    if (answer == plugin_answer::refused)
        write.about_syntax_error_in(path);
    else if (result != text) {
        if (write_to(path).from(result))
            ++changed_count;
        else
            write.about_invalid_file(path);
    }
    // Also after a refusal or a failed write: such a file waits until it, the style or the
    // addon changes.
    save_info_about_changes_of(records.settings()).this_source_file(path, language, style, addon_path);
    records.sync_if_due();
    return true;
}

void revision_run::finish() {
    try {
        plugin->end_of_revision();
    } catch (...) {
        // The files are revised by now; a plugin failing to tidy up changes nothing for them.
    }
    write_in(report).finish_info(found(), revised_count, changed_count);
    records.sync();
}
