#include "GUI/list_of_styles_itself.h"

#include "GUI/invitation.h"
#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/style_addon.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QUrl>

namespace GUI {

list_of_styles_itself::list_of_styles_itself(QWidget* parent) : QListWidget(parent) {
    setAcceptDrops(true);
    setDropIndicatorShown(false);
}

QString list_of_styles_itself::current_language() {
    QString language;
    emit obtain_programming_language(language);
    return language;
}

void list_of_styles_itself::dragEnterEvent(QDragEnterEvent* event) {
    std::string const language = current_language().toStdString();
    dropped.enter(event, [&](QFileInfo const& file) {
        return file.isFile() && file.fileName().endsWith(text::addon_suffix, Qt::CaseSensitive) && !language.empty() &&
               obtain_style_description().from_raw(file.filePath()).language == language;
    });
}

void list_of_styles_itself::dragMoveEvent(QDragMoveEvent* event) {
    dropped.move(event);
}

void list_of_styles_itself::dropEvent(QDropEvent* event) {
    QStringList const paths = dropped.drop(event);
    if (!paths.isEmpty())
        emit drag_n_dropped_valid_paths(paths);
}

void list_of_styles_itself::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        drag_start_position = event->pos();
    QListWidget::mousePressEvent(event);
}

void list_of_styles_itself::mouseMoveEvent(QMouseEvent* event) {
    bool const dragging = (event->buttons() & Qt::LeftButton) &&
                          (event->pos() - drag_start_position).manhattanLength() >=
                              QApplication::startDragDistance();
    QList<QListWidgetItem*> const selected = selectedItems();
    if (dragging && !selected.isEmpty() && !this_list_is_empty(this)) {
        std::string const path = kernel().full_path_to_style_addon_by(
            selected.first()->text().toStdString(), current_language().toStdString());
        if (!path.empty()) {
            auto* data = new QMimeData;
            data->setUrls({QUrl::fromLocalFile(QString::fromStdString(path))});
            auto* drag = new QDrag(this);
            drag->setMimeData(data);
            drag->setPixmap(QPixmap(":/images/addon.png"));
            drag->exec(Qt::CopyAction);
            return;
        }
    }
    QListWidget::mouseMoveEvent(event);
}

}  // namespace GUI
