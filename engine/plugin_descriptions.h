// What the catalogue knows of each language plugin (its language, extensions, keywords and
// structures), kept in a cache file between runs so that listing languages and showing a language's
// structures load no plugin while the plugin files stay as they are. Loading a plugin maps the
// whole formatting engine it is built on; most calls need none of it.
#ifndef STYLE_TARNEL_ENGINE_PLUGIN_DESCRIPTIONS_H
#define STYLE_TARNEL_ENGINE_PLUGIN_DESCRIPTIONS_H

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

struct plugin_description {
    std::string file_name;
    std::string language;
    std::vector<std::string> extensions;
    std::vector<std::string> keywords;
    std::map<std::string, std::string> structures;
};

class describe_plugins {
public:
    // `cache_file` may be empty (no cache) or name a file that does not exist yet.
    explicit describe_plugins(QString cache_file) : cache_file(std::move(cache_file)) {}

    // The descriptions of the files of `directory` named in `file_names` that load as language
    // plugins, in that order. A file is loaded only when the cache holds no description of it
    // with the same size, times and inode; a plugin that throws when asked its language is no
    // plugin, one that throws when asked anything else is described without it and not cached.
    std::vector<plugin_description> in(QString const& directory,
                                       std::vector<std::string> const& file_names) const;

    // Asks the plugin file at `path` itself, whatever the cache holds; absent when it is no
    // language plugin of this interface or throws when asked its language. `complete` tells
    // whether it answered every other question too.
    std::optional<plugin_description> asking(QString const& path, bool& complete) const;

    // Keeps `description` as that of the file now at `path`: for a plugin just copied into place,
    // whose old file of the same name this process may still hold loaded under that name.
    void remember(QString const& path, plugin_description const& description) const;

private:
    QString cache_file;
};

#endif
