#include "GUI/list_of_languages_itself.h"

#include "GUI/messages.h"
#include "core/kernel.h"

#include <QDragEnterEvent>
#include <QFileInfo>

namespace GUI {

list_of_languages_itself::list_of_languages_itself(QWidget* parent) : QListWidget(parent) {
    setAcceptDrops(true);
    setDropIndicatorShown(false);
}

void list_of_languages_itself::dragEnterEvent(QDragEnterEvent* event) {
    dropped.enter(event, [](QFileInfo const& file) {
        return file.isFile() && file.fileName().endsWith(text::plugin_suffix, Qt::CaseSensitive) &&
               kernel().this_is_a_plugin(file.filePath().toStdString());
    });
}

void list_of_languages_itself::dragMoveEvent(QDragMoveEvent* event) {
    dropped.move(event);
}

void list_of_languages_itself::dropEvent(QDropEvent* event) {
    QStringList const paths = dropped.drop(event);
    if (!paths.isEmpty())
        emit drag_n_dropped_valid_paths(paths);
}

}  // namespace GUI
