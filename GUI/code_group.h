// The middle group of the window: the paths to revise ("Paths to your code:" with the buttons that
// add and remove them) and the filename extensions that choose the files. It answers the other
// groups' questions about extensions and paths and enables itself step by step as a language,
// a style and extensions become available.
#ifndef STYLE_TARNEL_GUI_CODE_GROUP_H
#define STYLE_TARNEL_GUI_CODE_GROUP_H

#include <QWidget>

#include <memory>

namespace GUI {

class revise_menu_it_forcibly;
class revise_menu_all_forcibly;

class code_group : public QWidget {
    Q_OBJECT
public:
    // `parent` is the main window, over which the dialogs open.
    code_group(QWidget* parent, revise_menu_it_forcibly* it_forcibly, revise_menu_all_forcibly* all_forcibly);
    ~code_group() override;

    QWidget* widget_ptr();

signals:
    void obtain_programming_language(QString& language);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void obtain_selected_raw_paths_to_revising_files(QStringList& paths);
    void at_least_one_path_was_added();
    void no_extensions_anymore();
    void no_paths_anymore();
    // A path was added or removed, or the extensions changed, by the user or by a task shown.
    void paths_or_extensions_changed();

public slots:
    void language_n_style_was_selected();
    void all_extensions_have_been_deleted();
    void extension_have_been_added();
    void all_styles_have_been_deleted();
    void delete_all_raw_paths();
    void set_this_filename_extensions(QString const& extensions);
    void set_these_raw_paths(QString const& raw_paths);
    void show_default_filename_extensions();
    void restore_states_of_sliders();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
