// The list of installed languages, which also takes language plugins dropped onto it.
#ifndef STYLE_TARNEL_GUI_LIST_OF_LANGUAGES_ITSELF_H
#define STYLE_TARNEL_GUI_LIST_OF_LANGUAGES_ITSELF_H

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
    // The plugins found in the drag in progress.
    QStringList valid_paths;
};

}  // namespace GUI

#endif
