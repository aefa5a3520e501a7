// kernel: starting a revision run, once the task's language and style are found in the bundle.
#include "core/kernel.h"

#include "core/directory_listing.h"
#include "core/installed_files.h"
#include "core/style_addon.h"
#include "engine/tarnel.h"

namespace {

// The first plugin file in the listing whose plugin names the task's language. None found: the
// language's own name, which no plugin file has, so the run says which plugin it missed.
QString plugin_file_for(std::string const& language) {
    std::string found = language;
    first_plugin_where([&](std::string const& file_name, interface_to_language_plugin& plugin) {
        if (plugin.language_name() != language)
            return false;
        found = file_name;
        return true;
    });
    return QString::fromStdString(found);
}

// The addon file whose inside names the task's style and language. None found: the name such an
// addon would have, so the run says which addon it missed.
QString addon_file_for(std::string const& style, std::string const& language) {
    style_description const wanted{style, language};
    for (auto const& file_name : list_of_names_of_addons())
        if (obtain_style_description().from(file_name) == wanted)
            return QString::fromStdString(file_name);
    return QString::fromStdString(addon_file_name_for(style, language));
}

}  // namespace

int kernel::start_revise(revision_task const& task) const {
    return tarnel()(plugin_file_for(task.language), addon_file_for(task.style, task.language), task);
}

int kernel::start_revise(revision_task const& task, std::function<void(int)> maximum,
                         std::function<void(int)> value, std::function<void(std::string)> status,
                         std::function<void(std::string)> finished,
                         std::atomic<bool> const& stop) const {
    return tarnel()(plugin_file_for(task.language), addon_file_for(task.style, task.language), task,
                    std::move(maximum), std::move(value), std::move(status), std::move(finished),
                    stop);
}
