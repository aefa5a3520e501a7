// What the window's tests share: a fresh start for each case, emptying a bundle directory and
// reading a list's texts.
#ifndef STYLE_TARNEL_TESTS_GUI_WINDOW_TEST_HELPERS_H
#define STYLE_TARNEL_TESTS_GUI_WINDOW_TEST_HELPERS_H

#include <QString>
#include <QStringList>

class QListWidget;

// Removes the files (not the subdirectories) of the directory.
void empty_directory(QString const& path);
// Settings cleared but for the accepted agreement, and no plugin or addon in the bundle.
void start_from_an_empty_bundle();
// The texts of the list's items, from the top.
QStringList texts_of(QListWidget const* list);

#endif
