// The list of a language's styles: takes addons of that language dropped onto it, and hands the
// selected style's addon out by dragging it away.
#ifndef STYLE_TARNEL_GUI_LIST_OF_STYLES_ITSELF_H
#define STYLE_TARNEL_GUI_LIST_OF_STYLES_ITSELF_H

#include "GUI/files_dropped.h"

#include <QListWidget>
#include <QPoint>
#include <QStringList>

namespace GUI {

class list_of_styles_itself : public QListWidget {
    Q_OBJECT
public:
    explicit list_of_styles_itself(QWidget* parent);

signals:
    void drag_n_dropped_valid_paths(QStringList const& valid_paths);
    void obtain_programming_language(QString& language);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QString current_language();

    files_dropped dropped;
    QPoint drag_start_position;
};

}  // namespace GUI

#endif
