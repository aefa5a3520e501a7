// The upper group of the window: language, style, structure and the structure's form side by
// side in one splitter whose pane sizes survive a restart, and beside them, in a splitter of its
// own, the preview of a file of the task under the style. It answers the other groups' questions
// about the current language, style and structure.
#ifndef STYLE_TARNEL_GUI_STYLE_GROUP_H
#define STYLE_TARNEL_GUI_STYLE_GROUP_H

#include <QWidget>

#include <memory>

namespace GUI {

class language_menu_import;
class language_menu_delete;
class style_menu_import;
class style_menu_export;
class style_menu_delete;
class style_menu_rename;
class lnf_menu_about_this_structure;
class lnf_menu_undo;
class lnf_menu_redo;
class lnf_menu_copy;
class lnf_menu_select_all;
class lnf_menu_increase_font;
class lnf_menu_decrease_font;
class lnf_menu_non_print;
class preview_of_code;

struct style_group_actions {
    language_menu_import* language_import;
    language_menu_delete* language_delete;
    style_menu_import* style_import;
    style_menu_export* style_export;
    style_menu_delete* style_delete;
    style_menu_rename* style_rename;
    lnf_menu_about_this_structure* about_this_structure;
    lnf_menu_undo* undo;
    lnf_menu_redo* redo;
    lnf_menu_copy* copy;
    lnf_menu_select_all* select_all;
    lnf_menu_increase_font* increase_font;
    lnf_menu_decrease_font* decrease_font;
    lnf_menu_non_print* non_print;
};

class style_group : public QWidget {
    Q_OBJECT
public:
    style_group(QWidget* parent, QWidget* main_window, style_group_actions const& actions);
    ~style_group() override;

    QWidget* widget_ptr();
    bool there_is_no_programming_languages() const;
    preview_of_code* preview() const;
    void restore_state_of_splitter();
    void restore_states_of_sliders();

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_language_structure(QString& structure);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void language_n_style_was_selected();
    void all_languages_have_been_deleted();
    void all_styles_have_been_deleted();
    void delete_all_raw_paths();
    void show_default_filename_extensions();
    void editor_configurations_were_chosen(QStringList const& paths);

public slots:
    void set_this_programming_language(QString const& language);
    void set_this_formatting_style(QString const& style);
    void set_this_language_structure(QString const& structure);
    void set_first_programming_language();
    // The task's paths or extensions changed: the preview follows.
    void code_was_changed();

private:
    void save_state();

    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
