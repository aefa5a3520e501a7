// kernel: learning a style from a project's files through the language plugin's learning
// interface, and installing it as an import installs an addon.
#include "core/kernel.h"

#include "core/addon_installation.h"
#include "core/installed_files.h"
#include "core/store_files.h"
#include "core/style_addon.h"
#include "core/style_addon_editing.h"
#include "engine/file_collection.h"
#include "engine/ignore_request.h"
#include "engine/interruption_by_signal.h"
#include "engine/plugin_obtainer.h"
#include "engine/read_from.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

#include <algorithm>

namespace {

using end = style_learning_outcome::end;

style_learning_outcome ended(end how) {
    style_learning_outcome outcome;
    outcome.how = how;
    return outcome;
}

std::string extensions_of(revision_task const& task, plugin_description const& plugin) {
    if (!task.extensions.empty())
        return task.extensions;
    std::string extensions;
    for (std::string const& extension : plugin.extensions)
        extensions += (extensions.empty() ? "" : " ") + extension;
    return extensions;
}

// The names under which the formatting engine's own tools find a project's configuration of it.
char const* const engine_configuration_names[] = {".clang-format", "_clang-format"};

// The directory that holds every path of the task: the path itself for one directory, the common
// root of the files and directories otherwise; empty when they share none.
QString common_root_of(QStringList const& paths) {
    QString root;
    for (QString const& path : paths) {
        QFileInfo const info(path);
        QString const directory = QDir::cleanPath(info.isDir() ? info.absoluteFilePath() : info.absolutePath());
        if (root.isNull()) {
            root = directory;
            continue;
        }
        while (directory != root && !directory.startsWith(root.endsWith('/') ? root : root + '/')) {
            QString const parent = QFileInfo(root).path();
            if (parent == root)
                return QString();
            root = parent;
        }
    }
    return root;
}

// Where the learning may start: the project's own engine configuration, made into an addon by the
// plugin's configuration interface, when the task's common root holds one (the first start, and
// its file's name); then every installed style of the language, by name.
struct learning_starts {
    std::vector<learning_start> starts;
    std::string configuration;
};

learning_starts learning_starts_for(revision_task const& task, plugin_obtainer const& obtain) {
    learning_starts found;
    std::vector<learning_start>& starts = found.starts;
    QString const root = common_root_of(task.paths);
    if (interface_to_engine_configuration* const configurations = obtain.engine_configuration(); configurations && !root.isEmpty())
        for (char const* name : engine_configuration_names) {
            std::string configuration;
            if (!QFileInfo(QDir(root).filePath(name)).isFile() || !read_from(QDir(root).filePath(name)).to(configuration))
                continue;
            configured_addon const made = configurations->addon_from_configuration(configuration, task.style);
            if (!made.addon.empty()) {
                starts.push_back({std::string(), made.addon});
                found.configuration = name;
            }
            break;
        }
    std::vector<learning_start> installed;
    first_addon_where([&](std::string const& file_name, style_description const& description) {
        if (description.language == task.language)
            if (auto const text = addon_text_of(file_name))
                installed.push_back({description.style, *text});
        return false;
    });
    std::sort(installed.begin(), installed.end(),
              [](learning_start const& a, learning_start const& b) { return a.style < b.style; });
    starts.insert(starts.end(), installed.begin(), installed.end());
    return found;
}

style_learning_outcome learned(revision_task const& task,
                               std::function<void(unsigned long, unsigned long)> const& progress,
                               std::function<bool()> const& stop_requested) {
    auto const plugin = plugin_of(task.language);
    if (!plugin)
        return ended(end::no_such_language);
    // A name that a user could not give a style in a rename is refused here too, and so is one
    // that would leave the addons directory.
    if (task.style.empty() || !this_is_a_style_name(task.style) ||
        !is_plain_file_name(addon_file_name_for(task.style, task.language)))
        return ended(end::bad_style_name);
    std::string existing;
    if (addon_of(task.style, task.language, existing, stray_files::are_passed_over) != addons_pass::exhausted)
        return ended(end::style_exists);

    QPluginLoader loader;
    plugin_obtainer const obtain(loader);
    interface_to_language_plugin* const revising = obtain(path_of_plugin(plugin->file_name));
    if (!revising)
        return ended(end::no_such_language);
    interface_to_style_learning* const learning = obtain.style_learning();
    if (!learning)
        return ended(end::language_cannot_learn);

    // What the project leaves out of its revisions (vendored and generated code) is no example of
    // its style either.
    ignore_request ignoring;
    ignoring.excluded = task.excluded;
    ignoring.excluded_from = task.excluded_from;
    ignoring.git_followed = task.git_followed;
    QStringList const files = obtain_full_file_paths_from(task.paths)
                                  .following(ignoring)
                                  .with(QString::fromStdString(extensions_of(task, *plugin)));
    std::vector<std::string> sources;
    for (QString const& file : files) {
        std::string bytes;
        if (read_from(file).to(bytes) && !bytes.empty())
            sources.push_back(std::move(bytes));
    }
    if (sources.empty())
        return ended(end::no_files);
    std::string forms_of;
    std::string configuration_of;

    bool stopped = false;
    auto const going_on = [&](unsigned long done, unsigned long whole) {
        stopped = stopped || stop_requested();
        if (!stopped && progress)
            progress(done, whole);
        return !stopped;
    };
    // A plugin that takes starts keeps the best of them and of its own rules; one built against the
    // learning interface alone learns from the code only.
    style_learned_from_starts style;
    if (interface_to_style_learning_from_starts* const from_starts = obtain.style_learning_from_starts()) {
        learning_starts const starts = learning_starts_for(task, obtain);
        if (stop_requested())
            return ended(end::stopped);
        style = from_starts->learn_style_from(sources, starts.starts, task.style, going_on);
        if (style.start_taken >= 0 && static_cast<std::size_t>(style.start_taken) < starts.starts.size()) {
            forms_of = starts.starts[static_cast<std::size_t>(style.start_taken)].style;
            if (forms_of.empty())
                configuration_of = starts.configuration;
        }
    } else {
        style.learned = learning->learn_style(sources, task.style, going_on);
    }
    if (stopped || stop_requested())
        return ended(end::stopped);
    std::string const& addon = style.learned.addon;
    if (addon.empty())
        return ended(end::nothing_learned);
    style_learning_outcome outcome;
    outcome.files = sources.size();
    outcome.lines = style.learned.lines;
    outcome.lines_left = std::min(style.learned.lines_left, style.learned.lines);
    outcome.forms_of = forms_of;
    outcome.configuration_of = configuration_of;
    if (addon.empty() || !install_addon_text(addon, task.style, task.language))
        return ended(end::not_installed);
    return outcome;
}

}  // namespace

style_learning_outcome kernel::learn_style(revision_task const& task,
                                           std::function<void(unsigned long, unsigned long)> const& progress) const {
    interruption_by_signal const interruption;
    return learned(task, progress, [&] { return interruption.was_requested(); });
}

style_learning_outcome kernel::learn_style(revision_task const& task,
                                           std::function<void(unsigned long, unsigned long)> const& progress,
                                           std::atomic<bool> const& stop) const {
    return learned(task, progress, [&] { return stop.load(); });
}
