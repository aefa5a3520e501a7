// Telling a language plugin file by its name, as an addon is told by its extension.
#ifndef STYLE_TARNEL_CORE_LANGUAGE_PLUGIN_H
#define STYLE_TARNEL_CORE_LANGUAGE_PLUGIN_H

#include <string>

// Whether the file name part of `path` has the form of a dynamic library.
class language_plugin {
public:
    bool operator()(std::string const& path) const;
};

#endif
