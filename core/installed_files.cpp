#include "core/installed_files.h"

#include "core/directory_listing.h"
#include "core/style_addon.h"
#include "engine/plugin_obtainer.h"

#include <QPluginLoader>

bool first_plugin_where(
    std::function<bool(std::string const& file_name, interface_to_language_plugin& plugin)> const&
        is_wanted) {
    QPluginLoader loader;
    for (auto const& file_name : list_of_names_of_plugins()) {
        interface_to_language_plugin* plugin = plugin_obtainer(loader)(file_name);
        if (plugin == nullptr)
            continue;
        // A plugin is code from outside: one that throws when asked counts as no plugin.
        try {
            if (is_wanted(file_name, *plugin))
                return true;
        } catch (...) {
        }
    }
    return false;
}

bool with_plugin_of(std::string const& language,
                    std::function<void(interface_to_language_plugin& plugin)> const& use) {
    return first_plugin_where([&](std::string const&, interface_to_language_plugin& plugin) {
        if (plugin.language_name() != language)
            return false;
        use(plugin);
        return true;
    });
}

addons_pass first_addon_where(
    std::function<bool(std::string const& file_name, style_description const& description)> const&
        is_wanted) {
    for (auto const& file_name : list_of_names_of_addons()) {
        style_description const description = obtain_style_description().from(file_name);
        if (description.is_empty())
            return addons_pass::broken;
        if (is_wanted(file_name, description))
            return addons_pass::found;
    }
    return addons_pass::exhausted;
}

addons_pass addon_of(std::string const& style, std::string const& language,
                     std::string& file_name) {
    return first_addon_where([&](std::string const& name, style_description const& d) {
        if (d.style != style || d.language != language)
            return false;
        file_name = name;
        return true;
    });
}
