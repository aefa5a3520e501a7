#include "core/style_addon_editing.h"

#include "core/store_files.h"
#include "core/style_addon.h"
#include "engine/write_to.h"
#include "style_addon_forms.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

bool update_this::by(std::string const& form) const {
    auto text = addon_text_of(file_name);
    if (!text)
        return false;
    std::string const EOL = style_tarnel::line_ending_of(*text);
    // Stricter than reading a form: the name must be followed by the line ending at once.
    std::string const section = "S_NAME=" + structure + EOL + "S_BEG" + EOL;
    std::size_t const at = text->find(section);
    if (at == std::string::npos)
        return false;
    std::size_t const begin = at + section.size();
    std::size_t const end = text->find(EOL + "S_END", begin);
    text->replace(begin, end == std::string::npos ? std::string::npos : end - begin, form);
    return write_to(where_to_write_addon(path_of_addon(file_name))).from(*text);
}

std::string addon_text_renamed(std::string text, std::string const& old_name, std::string const& new_name) {
    std::string const old_header = "NAME=" + old_name;
    std::size_t const at = text.find(old_header);
    if (at == std::string::npos)
        return std::string();
    return text.replace(at, old_header.size(), "NAME=" + new_name);
}

bool rename_this_style::to(std::string const& new_name, std::string const& language) const {
    std::string const new_file_name = addon_file_name_for(new_name, language);
    // The names come from the user and from inside the addon: they must not lead out of the
    // addons directory.
    if (!is_plain_file_name(new_file_name))
        return false;
    auto const text = addon_text_of(file);
    if (!text)
        return false;
    std::string const renamed = addon_text_renamed(*text, old_name, new_name);
    if (renamed.empty())
        return false;
    QString const old_path = path_of_addon(file);
    QString const written = where_to_write_addon(old_path);
    QString const new_path = QFileInfo(written).absolutePath() + QDir::separator() + QString::fromStdString(new_file_name);
    // Refuses to replace another file of the new name.
    if (QFileInfo(new_path).absoluteFilePath() != QFileInfo(old_path).absoluteFilePath() &&
        (QFileInfo::exists(new_path) || QFileInfo(new_path).isSymLink()))
        return false;
    if (!write_to(new_path).from(renamed))
        return false;
    // The old file goes where it could be written; a bundled one stays, hidden by no copy.
    if (written == old_path && QFileInfo(new_path).absoluteFilePath() != QFileInfo(old_path).absoluteFilePath())
        return QFile::remove(old_path);
    return true;
}
