// The style group's two right-hand panes, the structure list and the structure's form, as frames
// with the signals and slots the group wires; they show nothing yet.
#ifndef STYLE_TARNEL_GUI_STRUCTURE_PANES_H
#define STYLE_TARNEL_GUI_STRUCTURE_PANES_H

#include <QFrame>

namespace GUI {

class select_language_structure : public QFrame {
    Q_OBJECT
public:
    explicit select_language_structure(QWidget* parent);

    QWidget* widget_ptr() { return this; }
    void set_this_language_structure(QString const& structure);
    void restore_state_of_slider();

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void language_structure_was_selected();

public slots:
    void show();
    void show_first();
    void disable_with_cleanup();
    void obtain_language_structure(QString& structure);
};

class view_n_edit_language_structure : public QFrame {
    Q_OBJECT
public:
    explicit view_n_edit_language_structure(QWidget* parent);

    QWidget* widget_ptr() { return this; }

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_language_structure(QString& structure);

public slots:
    void show();
    void disable_with_cleanup();
};

}  // namespace GUI

#endif
