// The list of installed languages, which also takes language plugins dropped onto it.
#ifndef STYLE_TARNEL_GUI_LIST_OF_LANGUAGES_ITSELF_H
#define STYLE_TARNEL_GUI_LIST_OF_LANGUAGES_ITSELF_H

#include "GUI/files_dropped.h"

#include <QListWidget>
#include <QStringList>

namespace GUI {

class list_of_languages_itself : public QListWidget {
    Q_OBJECT
public:
    explicit list_of_languages_itself(QWidget* parent);

signals:
    void drag_n_dropped_valid_paths(QStringList const& valid_paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    files_dropped dropped;
};

}  // namespace GUI

#endif
