#include "core/project_styles.h"

#include "core/style_addon.h"
#include "engine/read_from.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/algorithm/string/trim.hpp>

#include <set>
#include <utility>
#include <vector>

namespace {

std::string trimmed(std::string const& text) {
    return boost::algorithm::trim_copy_if(text, boost::algorithm::is_any_of(" \t\r"));
}

project_styles faulty(project_styles styles, project_styles_fault fault, int line) {
    styles.by_language.clear();
    styles.fault = fault;
    styles.faulty_line = line;
    return styles;
}

// The extensions of an "extensions" line ("h, hpp", ".h .hpp"), each followed by one blank;
// false when a word is no extension.
bool extensions_of_line(std::string const& value, std::string& extensions) {
    std::vector<std::string> words;
    boost::algorithm::split(words, value, boost::algorithm::is_any_of(", \t"), boost::algorithm::token_compress_on);
    for (std::string word : words) {
        if (word.empty())
            continue;
        if (word.front() == '.')
            word.erase(0, 1);
        if (word.empty() || !these_are_filename_extensions(word))
            return false;
        extensions += word + " ";
    }
    return !extensions.empty();
}

}  // namespace

std::string project_styles::language_given(std::string const& extension) const {
    for (auto const& [language, style] : by_language)
        if ((" " + style.extensions).find(" " + extension + " ") != std::string::npos)
            return language;
    return std::string();
}

char const* project_styles_file_name() { return ".style-tarnel"; }

project_styles read_project_styles::nearest_to(QString const& path) const {
    QFileInfo const start(path);
    QDir directory(start.isDir() ? start.absoluteFilePath() : start.absolutePath());
    for (;;) {
        QString const candidate = directory.filePath(project_styles_file_name());
        if (QFileInfo(candidate).isFile())
            return from(candidate);
        if (!directory.cdUp())
            return project_styles();
    }
}

project_styles read_project_styles::from(QString const& file) const {
    project_styles styles;
    styles.file = QFileInfo(file).absoluteFilePath();
    std::string text;
    if (!read_from(file).to(text))
        return faulty(styles, project_styles_fault::unreadable, 0);
    // A byte-order mark, as some editors write one at the start of UTF-8 text, is no part of the
    // first line.
    if (text.compare(0, 3, "\xEF\xBB\xBF") == 0)
        text.erase(0, 3);
    QDir const base = QFileInfo(file).absoluteDir();
    std::string language;
    int language_line = 0;
    bool language_has_style = true;
    std::set<std::string> languages_with_extensions;
    std::set<std::string> extensions_given;
    int number = 0;
    std::vector<std::pair<std::string, int>> addon_lines;  // language, line, in the order of the lines
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::string const line = trimmed(text.substr(start, end - start));
        start = end + 1;
        ++number;
        if (line.empty() || line[0] == '#')
            continue;
        if (line.front() == '[' && line.back() == ']') {
            if (!language_has_style)
                return faulty(styles, project_styles_fault::language_without_style, language_line);
            language = trimmed(line.substr(1, line.size() - 2));
            if (language.empty())
                return faulty(styles, project_styles_fault::empty_name, number);
            if (styles.by_language.count(language) != 0)
                return faulty(styles, project_styles_fault::language_twice, number);
            styles.by_language[language];
            language_line = number;
            language_has_style = false;
            continue;
        }
        std::size_t const equals = line.find('=');
        if (equals == std::string::npos)
            return faulty(styles, project_styles_fault::unknown_line, number);
        std::string const key = trimmed(line.substr(0, equals));
        std::string const value = trimmed(line.substr(equals + 1));
        if (key != "style" && key != "addon" && key != "extensions")
            return faulty(styles, project_styles_fault::unknown_key, number);
        if (language.empty())
            return faulty(styles, project_styles_fault::key_outside_language, number);
        if (value.empty())
            return faulty(styles, project_styles_fault::empty_name, number);
        if (key == "extensions") {
            if (!languages_with_extensions.insert(language).second)
                return faulty(styles, project_styles_fault::second_extensions, number);
            std::string& extensions = styles.by_language[language].extensions;
            if (!extensions_of_line(value, extensions))
                return faulty(styles, project_styles_fault::invalid_extensions, number);
            std::vector<std::string> words;
            boost::algorithm::split(words, extensions, boost::algorithm::is_any_of(" "), boost::algorithm::token_compress_on);
            for (auto const& extension : words)
                if (!extension.empty() && !extensions_given.insert(extension).second)
                    return faulty(styles, project_styles_fault::extension_twice, number);
            continue;
        }
        if (language_has_style)
            return faulty(styles, project_styles_fault::second_style, number);
        project_style& chosen = styles.by_language[language];
        if (key == "style")
            chosen.style = value;
        else
            chosen.addon_path = QDir::cleanPath(base.absoluteFilePath(QString::fromStdString(value)));
        if (key == "addon")
            addon_lines.emplace_back(language, number);
        language_has_style = true;
    }
    if (!language_has_style)
        return faulty(styles, project_styles_fault::language_without_style, language_line);
    // An addon of another language would revise the files of its own language, or, finding none,
    // check nothing at all. One that cannot be read or is no addon is left to the use that reads
    // it, which says why.
    for (auto const& [language_named, line] : addon_lines) {
        style_description const addon = obtain_style_description().from_raw(styles.by_language[language_named].addon_path);
        if (!addon.is_empty() && addon.language != language_named) {
            project_styles fault = faulty(styles, project_styles_fault::addon_of_another_language, line);
            fault.language_of_faulty_addon = addon.language;
            return fault;
        }
    }
    return styles;
}

QStringList read_project_styles::directories_with_their_own_below(QString const& directory) const {
    QStringList found;
    QDirIterator walk(directory, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QString const below = walk.next();
        if (QFileInfo::exists(below + "/" + project_styles_file_name()))
            found << below;
    }
    found.sort();
    return found;
}
