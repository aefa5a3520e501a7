// Where the bundle keeps its language plugins and style addons: two levels above the executable,
// then "PlugIns". Computed anew on every call; the program never creates these directories.
#ifndef STYLE_TARNEL_CORE_PATH_TO_H
#define STYLE_TARNEL_CORE_PATH_TO_H

#include <QString>

class path_to {
public:
    QString languages_n_styles_directory() const;
    QString plugins_directory() const;
    QString addons_directory() const;
};

#endif
