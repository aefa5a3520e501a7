#include "core/style_addon.h"

#include "core/path_to.h"
#include "engine/read_from.h"
#include "match_in_full.h"
#include "style_addon_forms.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using style_tarnel::without_NUL_bytes;

namespace {

std::string addon_text_at(QString const& path) {
    std::string text;
    if (!read_from(path).to(text))
        return std::string();
    return without_NUL_bytes(std::move(text));
}

}  // namespace

QString path_of_addon(std::string const& file) {
    QString const path = QString::fromStdString(file);
    if (QFileInfo(path).isAbsolute())
        return path;
    return path_to().addons_directory() + QDir::separator() + path;
}

boost::optional<std::string> addon_text_of(std::string const& file_name) {
    std::string text;
    if (!read_from(path_of_addon(file_name)).to(text))
        return boost::none;
    return without_NUL_bytes(std::move(text));
}

bool style_addon::operator()(std::string const& path) const {
    return QFileInfo(QString::fromStdString(path)).completeSuffix() == "style";
}

std::string addon_file_name_for(std::string const& style, std::string const& language) {
    return style + "[" + language + "].style";
}

style_description obtain_style_description::from(std::string const& file_name) const {
    return from_raw(path_of_addon(file_name));
}

style_description obtain_style_description::from_raw(QString const& path) const {
    return from_text(addon_text_at(path));
}

style_description obtain_style_description::from_raw(std::string const& path) const {
    return from_raw(QString::fromStdString(path));
}

style_description obtain_style_description::from_bytes(std::string const& bytes) const {
    return from_text(without_NUL_bytes(bytes));
}

style_description obtain_style_description::from_text(std::string const& text) const {
    auto const style = extract_value_of().from_ini_like("NAME", text, "=");
    auto const language = extract_value_of().from_ini_like("LANGUAGE", text, "=");
    if (!style || !language)
        return style_description();
    return style_description{*style, *language};
}

boost::optional<std::string> extract_value_of::from_ini_like(std::string const& key,
                                                             std::string const& text,
                                                             std::string const& separator) const {
    std::size_t const at = text.find(key + separator);
    if (at == std::string::npos)
        return boost::none;
    std::size_t const begin = at + key.size() + separator.size();
    std::size_t const end = text.find('\n', begin);
    return text.substr(begin, end == std::string::npos ? std::string::npos : end - begin);
}

std::string obtain_structure_form::from(std::string const& file_name) const {
    return from_already_reading(addon_text_at(path_of_addon(file_name)));
}

std::string obtain_structure_form::from_already_reading(std::string const& raw_text) const {
    return style_tarnel::form_of_structure(structure, raw_text);
}

std::string style_name_validator() { return "[a-zA-Z\\d\\s-_\\&]{0,}"; }

bool this_is_a_style_name(std::string const& name) {
    // The expression's white space admits line breaks and tabs, which would end the name's line
    // in the addon and split its settings key: only the blank is a name's white space.
    bool const control = std::any_of(name.begin(), name.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; });
    return !control && style_tarnel::match_in_full(style_name_validator()).of(name);
}

bool these_are_filename_extensions(std::string const& extensions) {
    return style_tarnel::match_in_full("[a-zA-Z\\d\\s]{1,}").of(extensions);
}
