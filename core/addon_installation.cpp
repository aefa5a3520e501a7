#include "core/addon_installation.h"

#include "core/store_files.h"
#include "core/style_addon.h"
#include "engine/write_to.h"

#include <QTemporaryDir>

bool install_addon_text(std::string const& addon, std::string const& style, std::string const& language) {
    QTemporaryDir directory;
    if (!directory.isValid())
        return false;
    QString const path = directory.filePath(QString::fromStdString(addon_file_name_for(style, language)));
    if (!write_to(path).from(addon))
        return false;
    return store::in<new_addons_directory>(path, [&](QString const& copy) {
        return obtain_style_description().from(copy.toStdString()) == style_description{style, language};
    });
}
