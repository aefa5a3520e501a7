// The file names (not paths) of the plain files in the plugins and addons directories, without
// subdirectories and hidden files, sorted by name ignoring case. A missing directory lists as
// empty. Every file counts: nothing is filtered by extension here.
#ifndef STYLE_TARNEL_CORE_DIRECTORY_LISTING_H
#define STYLE_TARNEL_CORE_DIRECTORY_LISTING_H

#include <string>
#include <vector>

std::vector<std::string> list_of_names_of_plugins();
std::vector<std::string> list_of_names_of_addons();

#endif
