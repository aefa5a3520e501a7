#include "window_test_helpers.h"

#include "core/path_to.h"
#include "core/settings_keys.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

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

bool dropped_on(QWidget* target, QString const& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QPoint const inside = target->rect().center();
    QDragEnterEvent enter(inside, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(inside, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return true;
}
