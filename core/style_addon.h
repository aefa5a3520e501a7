// Reading a style addon: whether a file is one, its style description, its header values and the
// form of one structure. An addon is text read as bytes with its NUL bytes dropped; header values
// are found by plain substring search ("NAME=" ... up to the next line feed, carriage return kept).
#ifndef STYLE_TARNEL_CORE_STYLE_ADDON_H
#define STYLE_TARNEL_CORE_STYLE_ADDON_H

#include "core/style_description.h"

#include <QString>
#include <boost/optional.hpp>

#include <string>

// True when the path's complete suffix (everything after the first dot of the file name) is
// exactly "style".
class style_addon {
public:
    bool operator()(std::string const& path) const;
};

// The file name an addon of `style` for `language` gets: "<style>[<language>].style".
std::string addon_file_name_for(std::string const& style, std::string const& language);

class obtain_style_description {
public:
    // The addon of that file name in the addons directory.
    style_description from(std::string const& file_name) const;
    // The addon at a full path.
    style_description from_raw(QString const& path) const;
    style_description from_raw(std::string const& path) const;
    // An addon text already in memory.
    style_description from_text(std::string const& text) const;
    // An addon's bytes as read from its file, NUL bytes still in them.
    style_description from_bytes(std::string const& bytes) const;
};

class extract_value_of {
public:
    // Absent when `key` + `separator` does not occur in `text`; otherwise what follows its first
    // occurrence up to the next line feed (empty when the match ends the text).
    boost::optional<std::string> from_ini_like(std::string const& key, std::string const& text,
                                               std::string const& separator) const;
};

// The form of one structure: the text after "S_NAME=<structure>" (a substring search, so a
// longer name that begins with <structure> and comes first is found), "S_BEG" and a line ending,
// up to the line ending before "S_END" or the end of the text. Empty when there is none.
class obtain_structure_form {
public:
    explicit obtain_structure_form(std::string structure) : structure(std::move(structure)) {}
    // The addon of that file name in the addons directory; empty when it cannot be read.
    std::string from(std::string const& file_name) const;
    std::string from_already_reading(std::string const& text) const;

private:
    std::string structure;
};

// The text of the addon at that path (or of that file name in the bundle's addons directory),
// NUL bytes dropped; absent when the file cannot be read.
boost::optional<std::string> addon_text_of(std::string const& file);
// The path itself when absolute; otherwise the full path of the bundle's addons directory's file
// of that name.
QString path_of_addon(std::string const& file);

// The pattern that style names (and task tab names) must match in full.
std::string style_name_validator();
// Whether a name a user gives a style matches that pattern in full and holds no control
// character (line feed, tab, ...).
bool this_is_a_style_name(std::string const& name);
// Whether a list of filename extensions, commas already replaced by blanks, holds only English
// letters, digits and white space, and at least one character.
bool these_are_filename_extensions(std::string const& extensions);

#endif
