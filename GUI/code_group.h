// The middle group of the window: the paths to revise and the filename extensions. A frame with
// the signals and slots the window wires; its lists come with the paths' own work.
#ifndef STYLE_TARNEL_GUI_CODE_GROUP_H
#define STYLE_TARNEL_GUI_CODE_GROUP_H

#include <QFrame>

namespace GUI {

class revise_menu_it_forcibly;
class revise_menu_all_forcibly;

class code_group : public QFrame {
    Q_OBJECT
public:
    code_group(QWidget* parent, revise_menu_it_forcibly* it_forcibly, revise_menu_all_forcibly* all_forcibly);

    QWidget* widget_ptr() { return this; }
    void restore_states_of_sliders() {}

signals:
    void obtain_programming_language(QString& language);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void obtain_selected_raw_paths_to_revising_files(QStringList& paths);
    void at_least_one_path_was_added();
    void no_extensions_anymore();
    void no_paths_anymore();

public slots:
    void language_n_style_was_selected() {}
    void set_this_filename_extensions(QString const&) {}
    void set_these_raw_paths(QString const&) {}
    void delete_all_raw_paths() {}
    void show_default_filename_extensions() {}
    void all_styles_have_been_deleted() {}
};

}  // namespace GUI

#endif
