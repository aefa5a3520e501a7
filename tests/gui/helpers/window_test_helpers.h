// What the window's tests share: emptying a bundle directory between cases and reading a list's
// texts.
#ifndef STYLE_TARNEL_TESTS_GUI_WINDOW_TEST_HELPERS_H
#define STYLE_TARNEL_TESTS_GUI_WINDOW_TEST_HELPERS_H

#include <QString>
#include <QStringList>

class QListWidget;

// Removes the files (not the subdirectories) of the directory.
void empty_directory(QString const& path);
// The texts of the list's items, from the top.
QStringList texts_of(QListWidget const* list);

#endif
