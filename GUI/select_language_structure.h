// The "Language structure" pane: the structures of the selected language that the selected style
// gives a form, by name; the selection names the structure whose form the editor shows.
#ifndef STYLE_TARNEL_GUI_SELECT_LANGUAGE_STRUCTURE_H
#define STYLE_TARNEL_GUI_SELECT_LANGUAGE_STRUCTURE_H

#include <QWidget>

#include <memory>

namespace GUI {

class select_language_structure : public QWidget {
    Q_OBJECT
public:
    explicit select_language_structure(QWidget* parent);
    ~select_language_structure() override;

    QWidget* widget_ptr();
    void enable();
    void disable();
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
    void save_slider_position(int position);
    void handle_language_structure_selection();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
