// kernel: learning a style from a project's files through the language plugin's learning
// interface, and installing it as an import installs an addon.
#include "core/kernel.h"

#include "core/addon_installation.h"
#include "core/closest_installed_style.h"
#include "core/installed_files.h"
#include "core/store_files.h"
#include "core/style_addon.h"
#include "core/style_addon_editing.h"
#include "engine/file_collection.h"
#include "engine/ignore_request.h"
#include "engine/interruption_by_signal.h"
#include "engine/plugin_obtainer.h"
#include "engine/read_from.h"

#include <QPluginLoader>

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

    bool stopped = false;
    learned_style const style =
        learning->learn_style(sources, task.style, [&](unsigned long done, unsigned long whole) {
            stopped = stopped || stop_requested();
            if (!stopped && progress)
                progress(done, whole);
            return !stopped;
        });
    if (stopped || stop_requested())
        return ended(end::stopped);
    if (style.addon.empty())
        return ended(end::nothing_learned);
    style_learning_outcome outcome;
    outcome.files = sources.size();
    outcome.lines = style.lines;
    outcome.lines_left = std::min(style.lines_left, style.lines);
    std::string addon = style.addon;
    closer_installed_style const closer = find_closest_installed_style(*revising, task.language, stop_requested)
                                              .than(style.addon, style.lines, style.lines_left, sources);
    if (stop_requested())
        return ended(end::stopped);
    if (!closer.style.empty()) {
        addon = addon_text_renamed(closer.addon, closer.style, task.style);
        outcome.forms_of = closer.style;
        outcome.lines = closer.lines;
        outcome.lines_left = std::min(closer.lines_left, closer.lines);
    }
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
