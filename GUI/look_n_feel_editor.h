// The editor of one structure form: a monospaced text editor whose every key release asks for a
// check of the form, which takes no pasted or dropped text, whose font size (12 to 32 points) and
// display of spaces and tabs survive a restart, and which drives the look-and-feel menu's entries.
#ifndef STYLE_TARNEL_GUI_LOOK_N_FEEL_EDITOR_H
#define STYLE_TARNEL_GUI_LOOK_N_FEEL_EDITOR_H

#include <QTextEdit>

#include <memory>

namespace GUI {

class lnf_menu_about_this_structure;
class lnf_menu_undo;
class lnf_menu_redo;
class lnf_menu_copy;
class lnf_menu_select_all;
class lnf_menu_increase_font;
class lnf_menu_decrease_font;
class lnf_menu_non_print;

class look_n_feel_editor : public QTextEdit {
    Q_OBJECT
public:
    look_n_feel_editor(QWidget* parent, lnf_menu_about_this_structure* about, lnf_menu_undo* undo,
                       lnf_menu_redo* redo, lnf_menu_copy* copy, lnf_menu_select_all* select_all,
                       lnf_menu_increase_font* increase_font, lnf_menu_decrease_font* decrease_font,
                       lnf_menu_non_print* non_print);
    ~look_n_feel_editor() override;

    void print(QString const& form);
    int font_size() const;

    static constexpr int smallest_font_size = 12;
    static constexpr int largest_font_size = 32;

signals:
    void form_was_changed();
    void key_was_pressed();
    void left_button_was_clicked();

public slots:
    void increase_font_size();
    void decrease_font_size();
    void check_is_copy_available(bool yes);
    void check_is_undo_available(bool yes);
    void check_is_redo_available(bool yes);
    void show_non_print(bool on);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void insertFromMimeData(QMimeData const* source) override;

private:
    void apply_font_size(int size);

    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
