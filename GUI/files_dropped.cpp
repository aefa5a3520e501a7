#include "GUI/files_dropped.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace GUI {

void files_dropped::enter(QDragEnterEvent* event, std::function<bool(QFileInfo const& file)> const& takes) {
    valid_paths.clear();
    if (event->mimeData()->hasUrls())
        for (QUrl const& url : event->mimeData()->urls()) {
            QFileInfo const file(url.toLocalFile());
            if (takes(file))
                valid_paths << url.toLocalFile();
        }
    if (valid_paths.isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void files_dropped::move(QDragMoveEvent* event) const {
    if (valid_paths.isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

QStringList files_dropped::drop(QDropEvent* event) {
    QStringList const dropped = valid_paths;
    valid_paths.clear();
    if (dropped.isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
    return dropped;
}

}  // namespace GUI
