#include "window_test_helpers.h"

#include <QDir>
#include <QListWidget>

void empty_directory(QString const& path) {
    QDir directory(path);
    for (QString const& name : directory.entryList(QDir::Files))
        directory.remove(name);
}

QStringList texts_of(QListWidget const* list) {
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}
