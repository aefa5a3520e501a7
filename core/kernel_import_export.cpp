// kernel: installing a language plugin or a style addon by copying it into the bundle (or the
// user's own directories where the bundle cannot be written), and
// copying an installed addon out to where the user wants it.
#include "core/kernel.h"

#include "core/directory_listing.h"
#include "core/installed_files.h"
#include "core/store_files.h"
#include "core/style_addon.h"
#include "engine/read_from.h"
#include "engine/write_to.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString from_utf8(std::string const& text) { return QString::fromStdString(text); }

// Copies an addon into the addons directory; the copy must still describe the same style.
bool store_addon(std::string const& path, style_description const& description) {
    return store::in<new_addons_directory>(from_utf8(path), [&](QString const& copy) {
        return obtain_style_description().from(copy.toStdString()) == description;
    });
}

// An addon is imported by what its own text says: the file must bear the name that text gives it,
// "<style>[<language>].style", so that the name a user sees is the style installed, and no file
// can install a second copy of a style under another name.
style_description description_of_addon_to_import(std::string const& path) {
    style_description const description = obtain_style_description().from_raw(path);
    if (description.is_empty() ||
        QFileInfo(from_utf8(path)).fileName() != from_utf8(addon_file_name_for(description.style, description.language)))
        return style_description();
    return description;
}

}  // namespace

std::string kernel::import_language_from(std::string const& path) const {
    // The copy must load as a language plugin and name its language before it replaces a plugin
    // of the same file name. What it says is kept for the file in its place: this process may
    // hold the replaced plugin loaded under that name, and would describe that one.
    std::optional<plugin_description> description;
    bool complete = false;
    // It goes into the bundle while the user can write there, into the user's own plugins
    // otherwise.
    bool const stored = store::in<new_plugins_directory>(from_utf8(path), [&](QString const& copy) {
        description = plugin_describer().asking(copy, complete);
        return description && !description->language.empty();
    });
    if (!stored)
        return std::string();
    if (complete)
        plugin_describer().remember(
            new_plugins_directory::path() + QDir::separator() + QFileInfo(from_utf8(path)).fileName(), *description);
    return description->language;
}

style_description kernel::import_style_from(std::string const& path,
                                            std::string const& language) const {
    style_description const description = description_of_addon_to_import(path);
    // A file that is no addon is never installed: it would hide every style.
    if (description.is_empty() || description.language != language)
        return description;
    return store_addon(path, description) ? description : style_description();
}

style_description kernel::import_style_from(std::string const& path) const {
    style_description const description = description_of_addon_to_import(path);
    if (description.is_empty())
        return description;
    // The front ends refuse a style of a language that is not installed before they get here.
    bool const stored = !plugin_of(description.language) || store_addon(path, description);
    return stored ? description : style_description();
}

bool kernel::export_style(std::string const& style, std::string const& language,
                          std::string const& destination) const {
    // The front ends build the exported file's name from these names: they must keep it in the
    // directory chosen.
    if (!is_plain_file_name(addon_file_name_for(style, language)))
        return false;
    if (!is_plain_file_name(QFileInfo(from_utf8(destination)).fileName().toStdString()))
        return false;
    // Only installed styles are offered for export: one that is not needs nothing done.
    return with_addon_of(style, language, [&](std::string const& file_name) {
        std::string bytes;
        if (!read_from(path_of_addon(file_name)).to(bytes))
            return false;
        // A link standing at the destination is replaced by the copy, not written through: its
        // target may lie outside the directory chosen.
        QString const target = from_utf8(destination);
        if (QFileInfo(target).isSymLink() && !QFile::remove(target))
            return false;
        return write_to(target).from(bytes);
    });
}

std::string kernel::full_path_to_style_addon_by(std::string const& style,
                                                std::string const& language) const {
    // Unlike the lists, a stray file does not hide the addon wanted here.
    std::string file_name;
    if (addon_of(style, language, file_name, stray_files::are_passed_over) != addons_pass::found)
        return std::string();
    return path_of_addon(file_name).toStdString();
}
