// The language column of the style group: a bold caption over the installed languages, which
// imports plugins (dialog or drop) and deletes the selected language.
#ifndef STYLE_TARNEL_GUI_SELECT_PROGRAMMING_LANGUAGE_H
#define STYLE_TARNEL_GUI_SELECT_PROGRAMMING_LANGUAGE_H

#include <QWidget>

#include <memory>

namespace GUI {

class language_menu_import;
class language_menu_delete;

class select_programming_language : public QWidget {
    Q_OBJECT
public:
    select_programming_language(QWidget* parent, QWidget* main_window, language_menu_import* import,
                                language_menu_delete* deletion);
    ~select_programming_language() override;

    QWidget* widget_ptr();
    bool there_is_no_programming_languages() const;
    void set_first_programming_language();
    void set_this_programming_language(QString const& language);
    void restore_state_of_slider();

signals:
    void language_was_selected();
    void all_languages_have_been_deleted();
    void obtain_formatting_style(QString& style);
    void obtain_language_structure(QString& structure);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);

public slots:
    void import_languages();
    void import_drag_n_dropped_valid_plugins(QStringList const& valid_paths);
    void delete_language();
    void maybe_language_was_selected();
    void save_slider_position(int current_position);
    void import_languages_factually(QStringList const& paths);
    void rejected();
    void obtain_programming_language(QString& language);

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
