#include "core/installed_files.h"

#include "core/directory_listing.h"
#include "core/path_to.h"
#include "core/style_addon.h"
#include "engine/plugin_obtainer.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

namespace {

using addon_wish = std::function<bool(std::string const& file_name, style_description const& description)>;

addons_pass walk_addons(addon_wish const& is_wanted, stray_files stray) {
    for (auto const& file_name : list_of_names_of_addons()) {
        auto const text = addon_text_of(file_name);
        style_description const description = obtain_style_description().from_text(text ? *text : std::string());
        if (description.is_empty()) {
            if (stray == stray_files::are_passed_over ||
                (stray == stray_files::are_passed_over_if_readable && text))
                continue;
            return addons_pass::broken;
        }
        if (is_wanted(file_name, description))
            return addons_pass::found;
    }
    return addons_pass::exhausted;
}

}  // namespace

bool language_plugin::operator()(std::string const& path) const {
    return QLibrary::isLibrary(QFileInfo(QString::fromStdString(path)).fileName());
}

QString path_of_plugin(std::string const& file_name) {
    return path_to().plugins_directory() + QDir::separator() + QString::fromStdString(file_name);
}

bool first_plugin_where(
    std::function<bool(std::string const& file_name, interface_to_language_plugin& plugin)> const&
        is_wanted) {
    QPluginLoader loader;
    for (auto const& file_name : list_of_names_of_plugins()) {
        interface_to_language_plugin* plugin = plugin_obtainer(loader)(path_of_plugin(file_name));
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
    return walk_addons(is_wanted, stray_files::stop_the_search);
}

addons_pass addon_of(std::string const& style, std::string const& language,
                     std::string& file_name, stray_files stray) {
    return walk_addons(
        [&](std::string const& name, style_description const& d) {
            if (d.style != style || d.language != language)
                return false;
            file_name = name;
            return true;
        },
        stray);
}

bool with_addon_of(std::string const& style, std::string const& language,
                   std::function<bool(std::string const& file_name)> const& use) {
    std::string file_name;
    switch (addon_of(style, language, file_name)) {
    case addons_pass::broken:
        return false;
    case addons_pass::exhausted:
        return true;
    case addons_pass::found:
        break;
    }
    return use(file_name);
}
