// What the tests of our language plugins share: the built plugins loaded as the host loads them,
// the shipped addons and golden files, verify_revise, the host's own line-ending detection, and a
// private cache.
#ifndef STYLE_TARNEL_TESTS_LANGUAGE_PLUGINS_OUR_PLUGINS_H
#define STYLE_TARNEL_TESTS_LANGUAGE_PLUGINS_OUR_PLUGINS_H

#include "interface_to_language_plugin.h"
#include "language.h"

#include <QPluginLoader>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>

namespace our_plugins {

// Points XDG_CACHE_HOME (and HOME) at a temporary directory for the whole test process, so that
// inference is shared between the tests of one executable and never touches the user's cache.
void use_private_cache();

QString plugin_path(QString const& file_name);
QString c_plugin_file();    // libc-language-plugin.so
QString cpp_plugin_file();  // libcpp-language-plugin.so
QString plugin_file_of(std::string const& language);
// Every plugin of ours, by language name, in the order the host lists them.
QStringList our_languages();

// The engine's description of one of our languages, by name.
tarnel_engine::language_description const& description_of(QString const& language);

// A plugin loaded with QPluginLoader from the build's plugins folder; unloaded with the object.
class loaded_plugin {
public:
    explicit loaded_plugin(QString const& file_name);
    ~loaded_plugin();
    interface_to_language_plugin* get() const { return plugin; }
    interface_to_language_plugin* operator->() const { return plugin; }
    // The plugin's learning interface, found as the host finds it.
    interface_to_style_learning* learning() const { return learner; }
    // The plugin's learning from starting styles, found as the host finds it.
    interface_to_style_learning_from_starts* learning_from_starts() const { return starts_learner; }
    // The plugin's range interface, found as the host finds it.
    interface_to_range_revision* ranges() const { return range_reviser; }
    // The plugin's configuration interface, found as the host finds it.
    interface_to_engine_configuration* configurations() const { return configurer; }

private:
    std::unique_ptr<QPluginLoader> loader;
    interface_to_language_plugin* plugin = nullptr;
    interface_to_style_learning* learner = nullptr;
    interface_to_style_learning_from_starts* starts_learner = nullptr;
    interface_to_range_revision* range_reviser = nullptr;
    interface_to_engine_configuration* configurer = nullptr;
};

// The shipped addons (file names in plugins/styles).
QStringList shipped_addons();
std::string shipped_addon(QString const& file_name);
std::string language_of_addon(std::string const& addon);

// The golden files: tests/language_plugins/golden/<language>/<style>/input and expected, as
// "<language>/<style>" for each folder.
QStringList golden_cases();
std::string golden_file(QString const& golden_case, QString const& name);

// Revises `input` with our plugin of `language` in the shipped `style`, and checks that the result
// is `expected`, that revising the result again changes nothing, and that only white space changed.
void verify_revise(std::string const& language, std::string const& style, std::string const& input,
                   std::string const& expected);

std::string contents_of(QString const& path);

// Line-ending traits exactly as the host computes them before calling revise().
line_ending_traits traits_of(std::string const& text);

}  // namespace our_plugins

#endif
