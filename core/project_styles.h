// A project's own styles: the file ".style-tarnel" that a repository keeps, found by walking up
// from a path, naming for each language a style of the store or a style addon file (relative to
// the directory of the file). Its lines:
//     # a comment            (and empty lines)
//     [C++]                  a language, by its plugin's name
//     style = Google         a style of the store for it, or
//     addon = styles/House[C++].style
//     extensions = h, hpp    optional: the extensions of the language's files in this project, in
//                            place of those its plugin knows (an extension two plugins know, as
//                            .h, then belongs to this language only)
// Nothing here words a fault: the front ends do, with the file and the line.
#ifndef STYLE_TARNEL_CORE_PROJECT_STYLES_H
#define STYLE_TARNEL_CORE_PROJECT_STYLES_H

#include <QString>
#include <QStringList>

#include <map>
#include <string>

// The style a project names for one language: a style of the store, or an addon file (absolute).
struct project_style {
    std::string style;
    QString addon_path;
    // The extensions of an "extensions" line, each followed by one blank; empty without one.
    std::string extensions;
};

enum class project_styles_fault {
    none,
    unreadable,
    // A line that is no comment, no "[language]" and no "key = value".
    unknown_line,
    // A key other than "style", "addon" and "extensions".
    unknown_key,
    // A "style", "addon" or "extensions" line before the first "[language]".
    key_outside_language,
    // "[]", "style =", "addon =" or "extensions =" without a name.
    empty_name,
    // A language named in two sections.
    language_twice,
    // A second "style" or "addon" line for one language.
    second_style,
    // A second "extensions" line for one language.
    second_extensions,
    // An "extensions" line with something else than letters and digits between its commas.
    invalid_extensions,
    // An extension given to two languages.
    extension_twice,
    // A "[language]" without a style or addon line.
    language_without_style,
    // An "addon" line naming an addon whose own text gives it another language.
    addon_of_another_language,
};

struct project_styles {
    // The file; empty when none was found.
    QString file;
    std::map<std::string, project_style> by_language;
    project_styles_fault fault = project_styles_fault::none;
    int faulty_line = 0;  // 1 for the first line
    // For an addon of another language: the language its text names.
    std::string language_of_faulty_addon;

    bool were_found() const { return !file.isEmpty(); }
    // The language whose "extensions" line gives `extension` (without its dot); empty when none does.
    std::string language_given(std::string const& extension) const;
};

// The file's name: ".style-tarnel".
char const* project_styles_file_name();

class read_project_styles {
public:
    // The nearest ".style-tarnel" in the directory of `path` (a directory: in itself) or in the
    // directories above it; none found: `file` is empty.
    project_styles nearest_to(QString const& path) const;
    // The file at `file`.
    project_styles from(QString const& file) const;
    // The directories below `directory`, at any depth, that hold a project file of their own, in
    // the order of a walk; hidden directories and symbolic links are not entered.
    QStringList directories_with_their_own_below(QString const& directory) const;
};

#endif
