#include "window_test_helpers.h"

#include "core/path_to.h"
#include "core/settings_keys.h"

#include <QDir>
#include <QListWidget>
#include <QSettings>

void empty_directory(QString const& path) {
    QDir directory(path);
    for (QString const& name : directory.entryList(QDir::Files))
        directory.remove(name);
}

void start_from_an_empty_bundle() {
    QSettings settings;
    settings.clear();
    settings.setValue(settings_key::EULA_was_accepted, true);
    settings.sync();
    empty_directory(path_to().plugins_directory());
    empty_directory(path_to().addons_directory());
}

QStringList texts_of(QListWidget const* list) {
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}
