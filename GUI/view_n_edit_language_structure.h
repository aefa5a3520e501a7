// The "Look and feel" pane: the form of the selected structure in the selected style, in an
// editor that checks every key release against the structure's expression, writes a matching form
// back into the style and puts a refused one back as it was ("Not supported"). Under the editor it
// says whether a revision keeps the form as written, under the rules the plugin reads from the
// whole style, and if not, how the form comes back.
#ifndef STYLE_TARNEL_GUI_VIEW_N_EDIT_LANGUAGE_STRUCTURE_H
#define STYLE_TARNEL_GUI_VIEW_N_EDIT_LANGUAGE_STRUCTURE_H

#include "GUI/style_group.h"

#include <QWidget>

#include <boost/optional.hpp>

#include <memory>
#include <string>

namespace GUI {

class look_n_feel_editor;

class view_n_edit_language_structure : public QWidget {
    Q_OBJECT
public:
    view_n_edit_language_structure(QWidget* parent, style_group_actions const& actions);
    ~view_n_edit_language_structure() override;

    QWidget* widget_ptr();
    look_n_feel_editor* editor() const;
    void enable();
    void disable();
    // The address of the manual page of a structure of a language.
    static QString manual_address_of(QString const& language, QString const& structure);

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_language_structure(QString& structure);
    // An edited form was written into the style.
    void form_was_saved();

public slots:
    void show();
    void disable_with_cleanup();
    void form_was_changed();
    void go_to_URL();
    void key_was_pressed();
    void left_button_was_clicked();
    // Asks the plugin, off the GUI thread, what it makes of the form; form_came_back says it
    // under the editor.
    void check_how_the_form_comes_back();
    void form_came_back(QString const& form, boost::optional<std::string> const& revised);

private:
    void put_back_the_form_saved_last();

    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
