// Paths come from the build (built::build_dir, built::source_dir); nothing here writes outside a
// temporary directory.
#include "our_plugins.h"

#include "c_language.h"
#include "cpp_language.h"
#include "engine/traits_of.h"
#include "java_language.h"
#include "javascript_language.h"
#include "proto_language.h"
#include "objc_language.h"
#include "csharp_language.h"
#include "tests/harness/built_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace our_plugins {

namespace {

QTemporaryDir& private_cache() {
    static QTemporaryDir directory(QDir::tempPath() + "/style-tarnel-plugin-cache-XXXXXX");
    return directory;
}

QString styles_directory() { return built::source_dir() + "/plugins/styles"; }
QString golden_directory() { return built::source_dir() + "/tests/language_plugins/golden"; }

}  // namespace

void use_private_cache() {
    qputenv("XDG_CACHE_HOME", (private_cache().path() + "/cache").toLocal8Bit());
    qputenv("HOME", (private_cache().path() + "/home").toLocal8Bit());
}


QString plugin_path(QString const& file_name) { return built::build_dir() + "/PlugIns/languages/" + file_name; }
QString c_plugin_file() { return "libc-language-plugin.so"; }
QString cpp_plugin_file() { return "libcpp-language-plugin.so"; }
QString plugin_file_of(std::string const& language) {
    if (language == "Java")
        return "libjava-language-plugin.so";
    if (language == "Protocol Buffers")
        return "libproto-language-plugin.so";
    if (language == "Objective-C")
        return "libobjc-language-plugin.so";
    if (language == "C#")
        return "libcsharp-language-plugin.so";
    if (language == "JavaScript")
        return "libjavascript-language-plugin.so";
    return language == "C" ? c_plugin_file() : cpp_plugin_file();
}

QStringList our_languages() { return {"C", "C++", "Java", "Protocol Buffers", "Objective-C", "C#", "JavaScript"}; }

tarnel_engine::language_description const& description_of(QString const& language) {
    if (language == "Java")
        return java_language();
    if (language == "Protocol Buffers")
        return proto_language();
    if (language == "Objective-C")
        return objc_language();
    if (language == "C#")
        return csharp_language();
    if (language == "JavaScript")
        return javascript_language();
    return language == "C" ? c_language() : cpp_language();
}

loaded_plugin::loaded_plugin(QString const& file_name) : loader(std::make_unique<QPluginLoader>(plugin_path(file_name))) {
    if (QObject* root = loader->instance()) {
        plugin = qobject_cast<interface_to_language_plugin*>(root);
        learner = qobject_cast<interface_to_style_learning*>(root);
        starts_learner = qobject_cast<interface_to_style_learning_from_starts*>(root);
        range_reviser = qobject_cast<interface_to_range_revision*>(root);
        configurer = qobject_cast<interface_to_engine_configuration*>(root);
    }
}

loaded_plugin::~loaded_plugin() { loader->unload(); }

QStringList shipped_addons() { return QDir(styles_directory()).entryList({"*.style"}, QDir::Files, QDir::Name); }


std::string shipped_addon(QString const& file_name) { return contents_of(styles_directory() + "/" + file_name); }

std::string language_of_addon(std::string const& addon) {
    std::size_t const at = addon.find("LANGUAGE=");
    if (at == std::string::npos)
        return std::string();
    return addon.substr(at + 9, addon.find('\n', at) - at - 9);
}

QStringList golden_cases() {
    QStringList cases;
    for (QString const& language : QDir(golden_directory()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (QString const& style : QDir(golden_directory() + "/" + language).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            cases << language + "/" + style;
    return cases;
}

std::string golden_file(QString const& golden_case, QString const& name) {
    return contents_of(golden_directory() + "/" + golden_case + "/" + name);
}

void verify_revise(std::string const& language, std::string const& style, std::string const& input,
                   std::string const& expected) {
    auto const non_white_space_of = [](std::string const& text) {
        std::string kept;
        for (std::size_t i = 0; i < text.size(); ++i)
            if (!std::isspace(static_cast<unsigned char>(text[i])) && !(text[i] == '\\' && text[i + 1] == '\n'))
                kept += text[i];
        return kept;
    };
    std::string const addon = shipped_addon(QString::fromStdString(style + "[" + language + "].style"));
    QVERIFY2(!addon.empty(), style.c_str());
    loaded_plugin plugin(plugin_file_of(language));
    QVERIFY(plugin.get());
    std::string const revised = plugin->revise(input, addon, traits_of(input));
    QCOMPARE(QString::fromStdString(revised), QString::fromStdString(expected));
    QCOMPARE(QString::fromStdString(plugin->revise(revised, addon, traits_of(revised))), QString::fromStdString(revised));
    QCOMPARE(QString::fromStdString(non_white_space_of(revised)), QString::fromStdString(non_white_space_of(input)));
}

std::string contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

line_ending_traits traits_of(std::string const& text) { return detail::traits_of()(text); }

}  // namespace our_plugins
