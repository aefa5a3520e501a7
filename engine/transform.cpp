#include "engine/transform.h"

#include <QDir>

QString transform::to_absolute() const {
    QString expanded = path;
    if (expanded.startsWith('~'))
        expanded.replace(0, 1, QDir::homePath());
    QDir directory(expanded);
    directory.makeAbsolute();
    return directory.absolutePath();
}
