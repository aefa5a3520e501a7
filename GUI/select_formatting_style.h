// The style column of the style group: a bold caption over the styles of the current language,
// which imports addons (dialog or drop), exports the selected one (dialog or drag out), deletes it
// and renames it in place.
#ifndef STYLE_TARNEL_GUI_SELECT_FORMATTING_STYLE_H
#define STYLE_TARNEL_GUI_SELECT_FORMATTING_STYLE_H

#include <QWidget>

#include <memory>

class QLineEdit;

namespace GUI {

class style_menu_import;
class style_menu_export;
class style_menu_delete;
class style_menu_rename;

struct style_actions {
    style_menu_import* import;
    style_menu_export* exporting;
    style_menu_delete* deletion;
    style_menu_rename* rename;
};

class select_formatting_style : public QWidget {
    Q_OBJECT
public:
    select_formatting_style(QWidget* parent, QWidget* main_window, style_actions const& actions);
    ~select_formatting_style() override;

    QWidget* widget_ptr();
    void remember_current(QLineEdit* editor);
    void store_renaming_style();
    void set_this_formatting_style(QString const& style);
    void restore_state_of_slider();

signals:
    void obtain_programming_language(QString& language);
    void style_was_selected();
    void all_styles_have_been_deleted();
    // Engine configuration files chosen in the import dialog: styles are to be made of them.
    void editor_configurations_were_chosen(QStringList const& paths);

public slots:
    void show();
    void enable();
    void disable();
    void disable_with_cleanup();
    void check_renaming(QString const& edited_name);
    void renaming_finished();
    void renaming_finished_by_ESC();
    void import_styles();
    void import_drag_n_dropped_valid_addons(QStringList const& valid_paths);
    void export_style();
    void delete_style();
    void rename_style();
    void obtain_formatting_style(QString& style);
    void maybe_style_was_selected();
    void save_slider_position(int current_position);
    void import_styles_factually(QStringList const& paths);
    void export_style_factually(QString const& path);
    void rejected();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
