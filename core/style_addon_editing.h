// Changing an installed style addon: one structure's form, the style's name inside the addon and
// in its file name. An addon the user cannot write (a bundle installed by the package manager) is
// changed in a copy of the user's own, which then hides it. All report by result.
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

// Gives the style a new name: inside the addon ("NAME=<new name>" for its first "NAME=<old name>")
// and in its file name ("<new name>[<language>].style"). An addon in a directory the user cannot
// write (a bundle installed by the package manager) stays as it is: the renamed copy goes to the
// user's addons directory. Fails, changing nothing, when a file of the new name exists there.
class rename_this_style {
public:
    rename_this_style(std::string file, std::string old_name) : file(std::move(file)), old_name(std::move(old_name)) {}
    bool to(std::string const& new_name, std::string const& language) const;

private:
    std::string file;
    std::string old_name;
};

#endif
