// kernel: removing an installed language with all its styles, removing one style, and giving a
// style a new name (inside the addon and in its file name).
#include "core/kernel.h"

#include "core/directory_listing.h"
#include "core/installed_files.h"
#include "core/store_files.h"
#include "core/style_addon.h"
#include "core/style_addon_editing.h"

#include <QFileInfo>

namespace {

// Removes every addon of the language that the user can remove, the user's and the bundle's (a
// pass sees a bundled style only once the user's of the same name is gone, so passes repeat while
// they remove something); false when one of them stays, or the addons directory holds a file that
// is no addon (the pass then stops there). The bundle's styles in a directory the user cannot
// write are the system's: they stay, and come back with the language.
bool remove_addons_of(std::string const& language) {
    bool removed = true;
    for (bool again = true; again && removed;) {
        again = false;
        addons_pass const pass = first_addon_where([&](std::string const& file, style_description const& d) {
            if (d.language != language)
                return false;
            if (!directory_is_writable(QFileInfo(QString::fromStdString(file)).absolutePath()))
                return false;
            if (remove_addon_at(file))
                again = true;
            else
                removed = false;
            return false;
        });
        if (pass == addons_pass::broken)
            return false;
    }
    return removed;
}

}  // namespace

bool kernel::delete_language_by(std::string const& language) const {
    bool deleted = true;
    // Every plugin of that name goes, a twin reporting the same name too; the styles go with a
    // plugin that could be removed and stay with one that could not. A plugin the user cannot
    // remove (the bundle's, installed by the system) stays.
    for (auto const& plugin : installed_plugins()) {
        if (plugin.language != language)
            continue;
        QString const file = path_of_plugin(plugin.file_name);
        if (!directory_is_writable(QFileInfo(file).absolutePath()) || !remove_plugin_at(file))
            deleted = false;
        else if (!remove_addons_of(language))
            deleted = false;
    }
    return deleted;
}

bool kernel::delete_style_by(std::string const& style, std::string const& language) const {
    std::string file_name;
    switch (addon_of(style, language, file_name, stray_files::are_passed_over_if_readable)) {
    case addons_pass::broken:
        return false;
    case addons_pass::exhausted:
        return true;
    case addons_pass::found:
        break;
    }
    return remove_addon_at(file_name);
}

bool kernel::style_is_read_only(std::string const& style, std::string const& language) const {
    std::string file;
    return addon_of(style, language, file, stray_files::are_passed_over) == addons_pass::found &&
           !directory_is_writable(QFileInfo(path_of_addon(file)).absolutePath());
}

bool kernel::rename_style(std::string const& style, std::string const& language,
                          std::string const& new_name) const {
    // A new file name that would leave the addons directory changes nothing at all.
    if (!is_plain_file_name(addon_file_name_for(new_name, language)))
        return false;
    return with_addon_of(style, language,
                         [&](std::string const& file) { return rename_this_style(file, style).to(new_name, language); });
}
