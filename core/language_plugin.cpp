#include "core/language_plugin.h"

#include <QFileInfo>
#include <QLibrary>

bool language_plugin::operator()(std::string const& path) const {
    return QLibrary::isLibrary(QFileInfo(QString::fromStdString(path)).fileName());
}
