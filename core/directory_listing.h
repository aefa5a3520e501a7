// The plain files in the plugins and addons directories, without subdirectories and hidden files,
// sorted by name ignoring case. A missing directory lists as empty. Every file counts: nothing is
// filtered by extension here.
#ifndef STYLE_TARNEL_CORE_DIRECTORY_LISTING_H
#define STYLE_TARNEL_CORE_DIRECTORY_LISTING_H

#include <string>
#include <vector>

// File names (not paths) in the bundle's plugins directory.
std::vector<std::string> list_of_names_of_plugins();
// Absolute paths of the files in the user's own plugins directory (none when it is the bundle's).
std::vector<std::string> list_of_user_plugin_files();
// Absolute paths: the user's own addons directory first, then the bundle's.
std::vector<std::string> list_of_addon_files();

#endif
