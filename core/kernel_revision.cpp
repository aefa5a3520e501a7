// kernel: starting a revision run, once the task's language and style are found in the bundle (or
// its addon file is given), checking in memory, revising one text, and forgetting change records.
#include "core/kernel.h"

#include "core/installed_files.h"
#include "core/path_to.h"
#include "core/product.h"
#include "core/settings_keys.h"
#include "core/style_addon.h"
#include "engine/change_record_store.h"
#include "engine/change_records.h"
#include "engine/console_checker.h"
#include "engine/file_collection.h"
#include "engine/lines_changed_in_run.h"
#include "engine/read_from.h"
#include "engine/revision_run.h"
#include "engine/tarnel.h"
#include "engine/text_revision.h"
#include "engine/unified_diff.h"

#include <QFileInfo>

#include <algorithm>

namespace {

records_location where_change_records_live() {
    return {product::organisation_name, settings_key::change_records_store};
}

// The first plugin file in the listing whose plugin names the task's language. None found: the
// language's own name, which no plugin file has, so the run says which plugin it missed.
std::string plugin_file_for(std::string const& language) {
    auto const plugin = plugin_of(language);
    return plugin ? plugin->file_name : language;
}

// The addon file whose inside names the task's style and language, as an absolute path (the user's
// own addons come first). None found: the name such an addon would have in the bundle, so the run
// says which addon it missed.
QString addon_file_for(std::string const& style, std::string const& language) {
    std::string file;
    if (addon_of(style, language, file, stray_files::are_passed_over) == addons_pass::found)
        return path_of_addon(file);
    return path_of_addon(addon_file_name_for(style, language));
}

revision_request request_for(revision_task const& task) {
    revision_request request;
    request.language = QString::fromStdString(task.language);
    request.style = QString::fromStdString(task.style);
    request.plugins_directory = path_to().plugins_directory();
    request.plugin_file = plugin_file_for(task.language);
    QFileInfo const addon(addon_file_for(task.style, task.language));
    request.addons_directory = addon.absolutePath();
    request.addon_file = addon.fileName().toStdString();
    if (!task.addon_path.isEmpty()) {
        // An addon file of the user's own: its names are those the records keep.
        style_description const description = obtain_style_description().from_raw(task.addon_path);
        QFileInfo const addon(task.addon_path);
        request.language = QString::fromStdString(description.language);
        request.style = QString::fromStdString(description.style);
        request.plugin_file = plugin_file_for(description.language);
        request.addons_directory = addon.absolutePath();
        request.addon_file = addon.fileName().toStdString();
    }
    request.extensions = task.extensions;
    request.paths = task.paths;
    request.ignoring.excluded = task.excluded;
    request.ignoring.excluded_from = task.excluded_from;
    request.ignoring.git_followed = task.git_followed;
    request.ignoring.subtrees_marked_by = task.subtrees_marked_by;
    request.quiet = task.quiet;
    request.lines.given = task.lines;
    request.lines.changed_since = task.changed_since;
    request.records = where_change_records_live();
    request.addon_manual = std::string(product::web_site) + "/user-guide/style-addon-by-hand";
    return request;
}

}  // namespace

void kernel::forget_change_records_of(QStringList const& paths) const {
    change_record_store const records(where_change_records_live());
    for (auto const& path : paths)
        remove_info_about_changes_of(records.settings()).this_path(path);
}

int kernel::start_revise(revision_task const& task) const { return tarnel()(request_for(task)); }

int kernel::start_revise(revision_task const& task, std::function<void(int)> maximum,
                         std::function<void(int)> value, std::function<void(std::string)> status,
                         std::function<void(std::string)> finished,
                         std::atomic<bool> const& stop) const {
    return tarnel()(request_for(task), std::move(maximum), std::move(value), std::move(status),
                    std::move(finished), stop);
}

int kernel::start_check(revision_task const& task, check_options const& options) const {
    revision_request request = request_for(task);
    request.records_ignored = options.records_ignored;
    if (options.files_found != nullptr)
        request.ignoring.collected = [found = options.files_found](int files, int) { *found += files; };
    return console_checker()(request, options.with_diff ? check_output::diff : check_output::report);
}

text_outcome_status kernel::revise_text(revision_task const& task, std::string const& name,
                                        std::string const& text, std::string& result,
                                        std::string& report) const {
    switch (text_revision(request_for(task)).of(text, QString::fromStdString(name), result, report)) {
    case text_outcome::revised:
        return text_outcome_status::revised;
    case text_outcome::refused:
        return text_outcome_status::refused;
    case text_outcome::not_started:
        break;
    }
    return text_outcome_status::not_started;
}

QStringList kernel::files_of(revision_task const& task) const {
    revision_request const request = request_for(task);
    return obtain_full_file_paths_from(request.paths)
        .following(request.ignoring)
        .with(QString::fromStdString(request.extensions));
}

changes_under_style kernel::changes_under_style_of(revision_task const& task,
                                                   std::function<void(unsigned long, int)> const& progress,
                                                   std::atomic<bool> const& stop) const {
    changes_under_style changes;
    revision_request request = request_for(task);
    request.writes_nothing = true;
    request.records_ignored = true;
    request.quiet = true;
    lines_changed_in_run count;
    request.would_change = [&](QString const& path, std::string const& text, std::string const& revised) {
        count.take(path, text, revised);
    };
    revision_run run(changes.report, request);
    if (!run.prepare())
        return changes;
    changes.started = true;
    changes.stopped = run.revise_all([&] { return stop.load(); }, progress);
    run.finish();
    // Of a count stopped early, the lines of about as many files as were done.
    int const done = changes.stopped ? static_cast<int>(std::min<unsigned long>(run.revised(), static_cast<unsigned long>(run.found())))
                                     : run.found();
    count.add_lines_of(run.files(), done);
    changes.lines = count.lines;
    changes.lines_changed = count.lines_changed;
    changes.files = count.files;
    changes.files_changed = count.files_changed;
    changes.changed_files = std::move(count.changed_files);
    return changes;
}

unsigned long kernel::lines_changed_between(std::string const& text, std::string const& revised) const {
    return ::lines_changed_between(text, revised);
}

std::string kernel::unified_diff_of(std::string const& label, std::string const& text,
                                    std::string const& revised) const {
    return ::unified_diff_of(label).between(text, revised);
}

bool kernel::git_reads_the_name_in_a_diff(std::string const& label) const {
    return ::git_reads_the_name_in_a_diff(label);
}

std::vector<std::string> kernel::languages_of_file_named(std::string const& file_name) const {
    std::string const extension = QFileInfo(QString::fromStdString(file_name)).suffix().toStdString();
    std::vector<std::string> languages;
    if (extension.empty())
        return languages;
    // Through the catalogue, which knows every plugin's extensions.
    for (auto const& language : supported_programming_languages()) {
        std::vector<std::string> const extensions = filename_extensions_for(language);
        if (std::find(extensions.begin(), extensions.end(), extension) != extensions.end() &&
            std::find(languages.begin(), languages.end(), language) == languages.end())
            languages.push_back(language);
    }
    return languages;
}
