// Where the bundle keeps its language plugins and style addons: two levels above the executable,
// then "PlugIns". Computed anew on every call; the program never creates these directories.
// Where the bundle cannot be written (an installed package), the user's own styles go to a
// directory of the user's: $XDG_DATA_HOME/style-tarnel/styles (and plugins to .../languages),
// listed before the bundle's.
#ifndef STYLE_TARNEL_CORE_PATH_TO_H
#define STYLE_TARNEL_CORE_PATH_TO_H

#include <QString>

class path_to {
public:
    QString languages_n_styles_directory() const;
    QString plugins_directory() const;
    QString addons_directory() const;

    QString user_languages_n_styles_directory() const;
    QString user_plugins_directory() const;
    QString user_addons_directory() const;
    // The directory that new and changed addons go to: the bundle's while the user can write it
    // (or while it is missing: a broken bundle), the user's own otherwise.
    QString addons_directory_for_new() const;
    // The directory that imported plugins go to, by the same rule.
    QString plugins_directory_for_new() const;
};

// Whether the user may create and replace files in the directory (which must exist).
bool directory_is_writable(QString const& directory);

#endif
