// The engine as a developer sees it, on the command line:
//   style-tarnel-plugin-tool options <addon>          the options inferred from the addon, as clang-format
//                                                     configuration
//   style-tarnel-plugin-tool check <addon>            each form that is not a fixed point, with what the
//                                                     engine makes of it, the option value it would need
//                                                     and the forms that value would lose; status 1 if any
//   style-tarnel-plugin-tool write-addon <language> <style name> <predefined style or configuration>
//                                                     an addon whose forms the engine writes
//   style-tarnel-plugin-tool manual <directory> <addon>...   the structure manual pages
#include "addon_forms.h"
#include "c_language.h"
#include "cpp_language.h"
#include "java_language.h"
#include "objc_language.h"
#include "javascript_language.h"
#include "proto_language.h"
#include "csharp_language.h"
#include "form_conflicts.h"
#include "manual_pages.h"
#include "revision.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <iostream>

namespace {

std::string contents_of(std::string const& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return std::string();
    return file.readAll().toStdString();
}

std::vector<tarnel_engine::language_description const*> const& our_languages() {
    static std::vector<tarnel_engine::language_description const*> const languages = {
        &c_language(), &cpp_language(), &java_language(), &proto_language(),
        &objc_language(), &csharp_language(),
        &javascript_language()};
    return languages;
}

tarnel_engine::language_description const* language_named(std::string const& name) {
    for (tarnel_engine::language_description const* language : our_languages())
        if (name == language->name)
            return language;
    return nullptr;
}

std::string value_in(std::string const& addon, std::string const& key) {
    std::size_t const at = addon.find(key + "=");
    if (at == std::string::npos)
        return std::string();
    std::size_t const begin = at + key.size() + 1;
    std::string value = addon.substr(begin, addon.find('\n', begin) - begin);
    if (!value.empty() && value.back() == '\r')
        value.pop_back();
    return value;
}

tarnel_engine::language_description const* language_of_addon(std::string const& addon) {
    return language_named(value_in(addon, "LANGUAGE"));
}

int print_options(std::string const& addon) {
    tarnel_engine::language_description const* language = language_of_addon(addon);
    if (!language)
        return 2;
    std::cout << tarnel_engine::options_inferred_from(addon, *language);
    return 0;
}

int check_forms(std::string const& addon) {
    tarnel_engine::language_description const* language = language_of_addon(addon);
    if (!language)
        return 2;
    int status = 0;
    for (tarnel_engine::form_not_coming_back const& each : tarnel_engine::forms_not_coming_back(addon, *language)) {
        std::cout << "== " << each.structure << ": the form\n" << each.form << "\n== comes back as\n" << each.comes_back << "\n";
        if (each.needs.empty()) {
            std::cout << "== no single option value brings it back\n";
        } else if (each.conflicting.empty()) {
            std::cout << "== it needs " << each.needs << ", which no other form contradicts\n";
        } else {
            std::cout << "== it needs " << each.needs << ", which these forms contradict (they share the rule):";
            for (std::string const& other : each.conflicting)
                std::cout << " " << other << (&other == &each.conflicting.back() ? "\n" : ",");
        }
        status = 1;
    }
    return status;
}

int write_pages(std::string const& directory, std::vector<std::string> const& addon_paths) {
    for (tarnel_engine::language_description const* language : our_languages()) {
        std::map<std::string, std::string> examples;
        for (std::string const& path : addon_paths) {
            std::string const addon = contents_of(path);
            if (value_in(addon, "LANGUAGE") == language->name)
                examples[value_in(addon, "NAME")] = addon;
        }
        for (auto const& [relative, page] : manual_pages_of(*language, examples)) {
            QString const path = QString::fromStdString(directory + "/" + relative);
            QDir().mkpath(QFileInfo(path).path());
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly))
                return 1;
            file.write(page.data(), static_cast<qint64>(page.size()));
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> const arguments(argv + 1, argv + argc);
    if (arguments.size() == 2 && arguments[0] == "options")
        return print_options(contents_of(arguments[1]));
    if (arguments.size() == 2 && arguments[0] == "check")
        return check_forms(contents_of(arguments[1]));
    if (arguments.size() == 4 && arguments[0] == "write-addon" && language_named(arguments[1])) {
        std::string const addon = tarnel_engine::addon_written_in(arguments[3], arguments[2], *language_named(arguments[1]));
        std::cout << addon;
        return addon.empty() ? 1 : 0;
    }
    if (arguments.size() >= 2 && arguments[0] == "manual")
        return write_pages(arguments[1], std::vector<std::string>(arguments.begin() + 2, arguments.end()));
    std::cerr << "usage: style-tarnel-plugin-tool options <addon> | check <addon> |\n"
                 "       write-addon <language> <style name> <predefined style or configuration> |\n"
                 "       manual <directory> <addon>...\n";
    return 2;
}
