// The manual page of each structure, written from the catalogue so that the pages and the plugins
// cannot disagree on a structure's tokens.
#ifndef TARNEL_PLUGINS_TOOLS_MANUAL_PAGES_H
#define TARNEL_PLUGINS_TOOLS_MANUAL_PAGES_H

#include "language.h"

#include <map>
#include <string>

// File path below the manual's root ("c++/long-function-call.md") -> page text. `examples` holds,
// per style name, an addon of the language whose forms the pages show.
std::map<std::string, std::string> manual_pages_of(tarnel_engine::language_description const& language,
                                                   std::map<std::string, std::string> const& examples);

#endif
