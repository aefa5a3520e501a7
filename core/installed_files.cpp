#include "core/installed_files.h"

#include "core/directory_listing.h"
#include "core/path_to.h"
#include "core/style_addon.h"
#include "engine/plugin_obtainer.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>
#include <QStandardPaths>

#include <set>
#include <utility>

namespace {

using addon_wish = std::function<bool(std::string const& file_name, style_description const& description)>;

addons_pass walk_addons(addon_wish const& is_wanted, stray_files stray) {
    // A style of the user's own hides the bundle's style of the same name and language.
    std::set<std::pair<std::string, std::string>> seen;
    for (auto const& file : list_of_addon_files()) {
        auto const text = addon_text_of(file);
        style_description const description = obtain_style_description().from_text(text ? *text : std::string());
        if (description.is_empty()) {
            if (stray == stray_files::are_passed_over ||
                (stray == stray_files::are_passed_over_if_readable && text))
                continue;
            return addons_pass::broken;
        }
        if (!seen.insert({description.style, description.language}).second)
            continue;
        if (is_wanted(file, description))
            return addons_pass::found;
    }
    return addons_pass::exhausted;
}

}  // namespace

QString path_of_plugin(std::string const& file_name) {
    QString const path = QString::fromStdString(file_name);
    if (QFileInfo(path).isAbsolute())
        return path;
    return path_to().plugins_directory() + QDir::separator() + path;
}

describe_plugins plugin_describer() {
    QString const cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return describe_plugins(cache.isEmpty() ? QString() : cache + "/style-tarnel/plugins.json");
}

std::vector<plugin_description> installed_plugins() {
    describe_plugins const describe = plugin_describer();
    std::vector<plugin_description> plugins =
        describe.in(path_to().user_plugins_directory(), list_of_user_plugin_files());
    std::set<std::string> users_languages;
    for (auto const& plugin : plugins)
        users_languages.insert(plugin.language);
    for (auto& plugin : describe.in(path_to().plugins_directory(), list_of_names_of_plugins()))
        if (users_languages.count(plugin.language) == 0)
            plugins.push_back(std::move(plugin));
    return plugins;
}

boost::optional<plugin_description> plugin_of(std::string const& language) {
    for (auto& plugin : installed_plugins())
        if (plugin.language == language)
            return std::move(plugin);
    return boost::none;
}

bool with_plugin_of(std::string const& language,
                    std::function<void(interface_to_language_plugin& plugin)> const& use) {
    auto const description = plugin_of(language);
    if (!description)
        return false;
    QPluginLoader loader;
    interface_to_language_plugin* plugin = plugin_obtainer(loader)(path_of_plugin(description->file_name));
    if (plugin == nullptr)
        return false;
    try {
        use(*plugin);
    } catch (...) {
        return false;
    }
    return true;
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
