// Installing an addon made in memory (learned, or written from a configuration) as an import
// installs a file.
#ifndef STYLE_TARNEL_CORE_ADDON_INSTALLATION_H
#define STYLE_TARNEL_CORE_ADDON_INSTALLATION_H

#include <string>

// Writes the addon under its own file name beside nothing else, then stores it: the copy must
// describe that style of that language. False when nothing was installed.
bool install_addon_text(std::string const& addon, std::string const& style, std::string const& language);

#endif
