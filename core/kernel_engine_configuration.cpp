// kernel: a style as its language's engine configuration, and a style made from such a
// configuration and installed as an import installs an addon, through the plugin's optional
// configuration interface.
#include "core/kernel.h"

#include "core/addon_installation.h"
#include "core/installed_files.h"
#include "core/store_files.h"
#include "core/style_addon.h"
#include "engine/plugin_obtainer.h"
#include "engine/read_from.h"

#include <QPluginLoader>

namespace {

using end = engine_configuration_end;

engine_configuration_outcome ended(end how) {
    engine_configuration_outcome outcome;
    outcome.how = how;
    return outcome;
}

engine_configuration_outcome configuration_of_addon_text(std::string const& addon, std::string const& language) {
    auto const plugin = plugin_of(language);
    if (!plugin)
        return ended(end::no_such_language);
    QPluginLoader loader;
    plugin_obtainer const obtain(loader);
    if (!obtain(path_of_plugin(plugin->file_name)))
        return ended(end::no_such_language);
    interface_to_engine_configuration* const configurations = obtain.engine_configuration();
    if (!configurations)
        return ended(end::language_without_configuration);
    engine_configuration_outcome outcome;
    outcome.configuration = configurations->engine_configuration_of(addon);
    if (outcome.configuration.empty())
        outcome.how = end::refused;
    return outcome;
}

}  // namespace

engine_configuration_outcome kernel::engine_configuration_of(std::string const& style,
                                                             std::string const& language) const {
    if (!plugin_of(language))
        return ended(end::no_such_language);
    std::string file;
    if (addon_of(style, language, file, stray_files::are_passed_over) != addons_pass::found)
        return ended(end::no_such_style);
    std::string addon;
    if (!read_from(QString::fromStdString(file)).to(addon))
        return ended(end::unreadable_file);
    return configuration_of_addon_text(addon, language);
}

engine_configuration_outcome kernel::engine_configuration_of_addon(std::string const& path) const {
    std::string addon;
    if (!read_from(QString::fromStdString(path)).to(addon))
        return ended(end::unreadable_file);
    return configuration_of_addon_text(addon, obtain_style_description().from_raw(path).language);
}

configuration_import_outcome kernel::import_style_from_configuration(std::string const& path,
                                                                     std::string const& language,
                                                                     std::string const& style) const {
    configuration_import_outcome outcome;
    auto const plugin = plugin_of(language);
    if (!plugin) {
        outcome.how = end::no_such_language;
        return outcome;
    }
    // A name that a user could not give a style in a rename is refused here too, and so is one
    // that would leave the addons directory.
    if (style.empty() || !this_is_a_style_name(style) || !is_plain_file_name(addon_file_name_for(style, language))) {
        outcome.how = end::bad_style_name;
        return outcome;
    }
    std::string configuration;
    if (!read_from(QString::fromStdString(path)).to(configuration)) {
        outcome.how = end::unreadable_file;
        return outcome;
    }
    QPluginLoader loader;
    plugin_obtainer const obtain(loader);
    if (!obtain(path_of_plugin(plugin->file_name))) {
        outcome.how = end::no_such_language;
        return outcome;
    }
    interface_to_engine_configuration* const configurations = obtain.engine_configuration();
    if (!configurations) {
        outcome.how = end::language_without_configuration;
        return outcome;
    }
    configured_addon const made = configurations->addon_from_configuration(configuration, style);
    if (made.addon.empty()) {
        outcome.how = end::refused;
        outcome.reason = made.refusal;
        return outcome;
    }
    if (!install_addon_text(made.addon, style, language)) {
        outcome.how = end::not_installed;
        return outcome;
    }
    outcome.left_out = made.left_out;
    outcome.not_shown = made.not_shown;
    return outcome;
}
