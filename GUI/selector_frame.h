// What the language and style columns share: the bold caption over the list, the column's width
// limits, the list's look, and the file dialog that imports into the bundle.
#ifndef STYLE_TARNEL_GUI_SELECTOR_FRAME_H
#define STYLE_TARNEL_GUI_SELECTOR_FRAME_H

#include <QString>
#include <QStringList>

class QFileDialog;
class QListWidget;
class QWidget;

namespace GUI {

// Lays out `caption` (bold, centred) above `list` in `column`, margins 0.
void lay_out_selector(QWidget* column, QString const& caption, QListWidget* list);

// A window-modal import dialog on `main_window`, kept hidden between uses: existing files, several
// at once, detail view, files, directories and drives listed, starting in the home directory.
QFileDialog* import_dialog_on(QWidget* main_window, QString const& filter, QString const& name);

// The texts of the list's items from the top, the first whose text is among `names` selected.
void select_first_from(QListWidget* list, QStringList const& names);

// The parent directory of the first path, or an empty text.
QString parent_directory_of_first(QStringList const& paths);

// Whether the file may be imported: it exists, is a regular file, readable and writable.
bool this_file_may_be_imported(QString const& path);

}  // namespace GUI

#endif
