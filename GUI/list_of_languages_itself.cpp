#include "GUI/list_of_languages_itself.h"

#include "GUI/messages.h"
#include "core/kernel.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace GUI {

list_of_languages_itself::list_of_languages_itself(QWidget* parent) : QListWidget(parent) {
    setAcceptDrops(true);
    setDropIndicatorShown(false);
}

void list_of_languages_itself::dragEnterEvent(QDragEnterEvent* event) {
    valid_paths.clear();
    if (!event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    for (QUrl const& url : event->mimeData()->urls()) {
        QString const path = url.toLocalFile();
        QFileInfo const file(path);
        if (file.isFile() && file.fileName().endsWith(text::plugin_suffix, Qt::CaseSensitive) &&
            kernel().this_is_a_plugin(path.toStdString()))
            valid_paths << path;
    }
    if (valid_paths.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
}

void list_of_languages_itself::dragMoveEvent(QDragMoveEvent* event) {
    if (valid_paths.isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void list_of_languages_itself::dropEvent(QDropEvent* event) {
    if (valid_paths.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    QStringList const dropped = valid_paths;
    valid_paths.clear();
    emit drag_n_dropped_valid_paths(dropped);
}

}  // namespace GUI
