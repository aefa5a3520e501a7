// Changing an installed style addon in place: one structure's form, the style's name inside the
// addon, the addon's file name. All work in the addons directory and report by result.
#ifndef STYLE_TARNEL_CORE_STYLE_ADDON_EDITING_H
#define STYLE_TARNEL_CORE_STYLE_ADDON_EDITING_H

#include <string>

// Replaces the form of one structure. The section must be written exactly as "S_NAME=<name>",
// line ending, "S_BEG", line ending; otherwise nothing is written and the result is false.
class update_this {
public:
    update_this(std::string structure, std::string file_name)
        : structure(std::move(structure)), file_name(std::move(file_name)) {}
    bool by(std::string const& form) const;

private:
    std::string structure;
    std::string file_name;
};

// The addon's text with its first "NAME=<old name>" replaced by "NAME=<new name>"; empty when it
// has none.
std::string addon_text_renamed(std::string text, std::string const& old_name, std::string const& new_name);

// Replaces the first "NAME=<old name>" inside the addon by "NAME=<new name>".
class rename_this_style {
public:
    rename_this_style(std::string file_name, std::string old_name)
        : file_name(std::move(file_name)), old_name(std::move(old_name)) {}
    bool to(std::string const& new_name) const;

private:
    std::string file_name;
    std::string old_name;
};

// Renames the addon file to "<new name>[<language>].style"; fails when that file exists.
class rename_this_addon_file {
public:
    explicit rename_this_addon_file(std::string file_name) : file_name(std::move(file_name)) {}
    bool based_on(std::string const& new_name, std::string const& language) const;

private:
    std::string file_name;
};

#endif
