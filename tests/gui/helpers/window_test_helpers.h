// What the window's tests share: a fresh start for each case, emptying a bundle directory,
// reading a list's texts and dropping a file on a widget.
#ifndef STYLE_TARNEL_TESTS_GUI_WINDOW_TEST_HELPERS_H
#define STYLE_TARNEL_TESTS_GUI_WINDOW_TEST_HELPERS_H

#include <QString>
#include <QStringList>

class QListWidget;
class QWidget;

// Removes the files (not the subdirectories) of the directory.
void empty_directory(QString const& path);
// Settings cleared but for the accepted agreement, and no plugin or addon in the bundle.
void start_from_an_empty_bundle();
// The texts of the list's items, from the top.
QStringList texts_of(QListWidget const* list);
// Drags the file at `path` over the middle of `target` and, when the widget accepts it there,
// drops it. Whether it was accepted.
bool dropped_on(QWidget* target, QString const& path);

#endif
