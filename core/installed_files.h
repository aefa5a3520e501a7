// Going through what is installed, in the order of the directory listings: the plugins that load
// as language plugins, and the style addons with their descriptions. Every call lists anew; what
// plugins say of themselves is kept in a cache file while their files stay the same.
#ifndef STYLE_TARNEL_CORE_INSTALLED_FILES_H
#define STYLE_TARNEL_CORE_INSTALLED_FILES_H

#include "core/style_description.h"
#include "engine/plugin_descriptions.h"
#include "interface_to_language_plugin.h"

#include <boost/optional.hpp>

#include <QString>

#include <functional>
#include <string>
#include <vector>

// The path itself when absolute (a plugin of the user's own); otherwise the full path of the
// bundle's plugins directory's file of that name.
QString path_of_plugin(std::string const& file_name);

// What plugins say of themselves, kept in the user's cache directory.
describe_plugins plugin_describer();

// The language plugins installed, each as it describes itself: the user's own first (their
// file_name an absolute path), in the order of their listing, then the bundle's (file_name a name
// in the bundle's plugins directory). A language that a plugin of the user's reports is the
// user's: the bundle's plugins of the same language name are passed over, so that the user's
// takes precedence however its file is named. Only plugins that changed since they were last
// described are loaded.
std::vector<plugin_description> installed_plugins();

// The first installed plugin that reports exactly that language name.
boost::optional<plugin_description> plugin_of(std::string const& language);

// Loads the first installed plugin of that language and calls `use` with it; the plugin is valid
// only during that call. False when there is no such plugin, it does not load, or `use` throws
// (a plugin is code from outside).
bool with_plugin_of(std::string const& language,
                    std::function<void(interface_to_language_plugin& plugin)> const& use);

enum class addons_pass { exhausted, found, broken };

// Calls `is_wanted` with each addon's file (an absolute path; the user's addons first, then the
// bundle's, a bundled style that the user has one of the same name and language of passed over)
// and its description until it returns true (found). A description with an empty style or
// language stops the pass at once (broken).
addons_pass first_addon_where(
    std::function<bool(std::string const& file, style_description const& description)> const&
        is_wanted);

// What a search for one addon does with a file that is no addon: the operations that change an
// addon stop there (the directory is broken), the ones that only look for it pass over it, and
// deleting a style passes over a file it can read but stops at one it cannot.
enum class stray_files { stop_the_search, are_passed_over, are_passed_over_if_readable };

// The first addon of that style and language: `file` gets its absolute path when found.
addons_pass addon_of(std::string const& style, std::string const& language,
                     std::string& file, stray_files stray = stray_files::stop_the_search);

// Runs `use` with the file (absolute path) of the addon of that style and language and returns its result.
// A broken addons directory gives false; a style that is not installed gives true, as there is
// nothing to do.
bool with_addon_of(std::string const& style, std::string const& language,
                   std::function<bool(std::string const& file)> const& use);

#endif
