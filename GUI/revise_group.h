// The lower group of the window: starting a revision and its report. A frame with the signals and
// slots the window wires; its buttons come with the revision's own work.
#ifndef STYLE_TARNEL_GUI_REVISE_GROUP_H
#define STYLE_TARNEL_GUI_REVISE_GROUP_H

#include <QFrame>

namespace GUI {

class revise_menu_all;

class revise_group : public QFrame {
    Q_OBJECT
public:
    revise_group(QWidget* parent, revise_menu_all* all);

    QWidget* widget_ptr() { return this; }

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void obtain_selected_raw_paths_to_revising_files(QStringList& paths);
    void obtain_geometry_of_main_window(QRect& geometry);

public slots:
    void at_least_one_path_was_added() {}
    void no_extensions_anymore() {}
    void no_paths_anymore() {}
    void revise_all() {}
    void revise_it_forcibly() {}
    void revise_all_forcibly() {}
    void all_styles_have_been_deleted() {}
};

}  // namespace GUI

#endif
