// Paths come from the build (built::build_dir, built::source_dir); nothing here writes outside a
// temporary directory.
#include "our_plugins.h"

#include "engine/traits_of.h"
#include "tests/harness/built_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace our_plugins {

namespace {

QTemporaryDir& private_cache() {
    static QTemporaryDir directory(QDir::tempPath() + "/style-tarnel-plugin-cache-XXXXXX");
    return directory;
}

QString styles_directory() { return built::source_dir() + "/plugins/styles"; }
QString samples_directory() { return built::source_dir() + "/tests/language_plugins/samples"; }

}  // namespace

void use_private_cache() {
    qputenv("XDG_CACHE_HOME", (private_cache().path() + "/cache").toLocal8Bit());
    qputenv("HOME", (private_cache().path() + "/home").toLocal8Bit());
}

QString cache_directory() { return private_cache().path() + "/cache/style-tarnel"; }

QString plugin_path(QString const& file_name) { return built::build_dir() + "/PlugIns/languages/" + file_name; }
QString c_plugin_file() { return "libc-language-plugin.so"; }
QString cpp_plugin_file() { return "libcpp-language-plugin.so"; }
QString plugin_file_of(std::string const& language) { return language == "C" ? c_plugin_file() : cpp_plugin_file(); }

loaded_plugin::loaded_plugin(QString const& file_name) : loader(std::make_unique<QPluginLoader>(plugin_path(file_name))) {
    if (QObject* root = loader->instance())
        plugin = qobject_cast<interface_to_language_plugin*>(root);
}

loaded_plugin::~loaded_plugin() { loader->unload(); }

QStringList shipped_addons() { return QDir(styles_directory()).entryList({"*.style"}, QDir::Files, QDir::Name); }

QStringList shipped_addons_of(std::string const& language) {
    QStringList chosen;
    for (QString const& file : shipped_addons())
        if (language_of_addon(shipped_addon(file)) == language)
            chosen << file;
    return chosen;
}

std::string shipped_addon(QString const& file_name) { return contents_of(styles_directory() + "/" + file_name); }

std::string language_of_addon(std::string const& addon) {
    std::size_t const at = addon.find("LANGUAGE=");
    if (at == std::string::npos)
        return std::string();
    return addon.substr(at + 9, addon.find('\n', at) - at - 9);
}

QStringList samples_of(std::string const& language) {
    return QDir(samples_directory()).entryList({language == "C" ? "*.c" : "*.cpp"}, QDir::Files, QDir::Name);
}

std::string sample(QString const& file_name) { return contents_of(samples_directory() + "/" + file_name); }

std::string contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

line_ending_traits traits_of(std::string const& text) { return detail::traits_of()(text); }

}  // namespace our_plugins
