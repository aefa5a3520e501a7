// Going through what is installed, in the order of the directory listings: the plugins that load
// as language plugins, and the style addons with their descriptions. Every call lists and loads
// anew; nothing is kept between calls.
#ifndef STYLE_TARNEL_CORE_INSTALLED_FILES_H
#define STYLE_TARNEL_CORE_INSTALLED_FILES_H

#include "core/style_description.h"
#include "interface_to_language_plugin.h"

#include <QString>

#include <functional>
#include <string>

// Whether the file name part of `path` has the form of a dynamic library.
class language_plugin {
public:
    bool operator()(std::string const& path) const;
};

// The full path of the plugins directory's file of that name.
QString path_of_plugin(std::string const& file_name);

// Calls `is_wanted` with each plugin file's name and its loaded plugin (files that do not load
// are skipped) until it returns true. The plugin is valid only during that call. True when a
// plugin was wanted.
bool first_plugin_where(
    std::function<bool(std::string const& file_name, interface_to_language_plugin& plugin)> const&
        is_wanted);

// True when some plugin reports exactly that language name; `use` is then called with the first.
bool with_plugin_of(std::string const& language,
                    std::function<void(interface_to_language_plugin& plugin)> const& use);

enum class addons_pass { exhausted, found, broken };

// Calls `is_wanted` with each addon file's name and its description until it returns true
// (found). A description with an empty style or language stops the pass at once (broken).
addons_pass first_addon_where(
    std::function<bool(std::string const& file_name, style_description const& description)> const&
        is_wanted);

// What a search for one addon does with a file that is no addon: the operations that change an
// addon stop there (the directory is broken), the ones that only look for it pass over it, and
// deleting a style passes over a file it can read but stops at one it cannot.
enum class stray_files { stop_the_search, are_passed_over, are_passed_over_if_readable };

// The first addon of that style and language: `file_name` gets its file name when found.
addons_pass addon_of(std::string const& style, std::string const& language,
                     std::string& file_name, stray_files stray = stray_files::stop_the_search);

// Runs `use` with the file name of the addon of that style and language and returns its result.
// A broken addons directory gives false; a style that is not installed gives true, as there is
// nothing to do.
bool with_addon_of(std::string const& style, std::string const& language,
                   std::function<bool(std::string const& file_name)> const& use);

#endif
