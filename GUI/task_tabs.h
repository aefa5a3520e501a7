// The task tabs above the groups: each tab keeps one task (language, style, structure, extensions,
// paths). For now one tab, "Task 1", whose restore selects the first language.
#ifndef STYLE_TARNEL_GUI_TASK_TABS_H
#define STYLE_TARNEL_GUI_TASK_TABS_H

#include <QTabBar>

namespace GUI {

class tab_menu_new;
class tab_menu_close;
class tab_menu_rename;

class task_tabs : public QTabBar {
    Q_OBJECT
public:
    task_tabs(QWidget* parent, tab_menu_new* add, tab_menu_close* close, tab_menu_rename* rename);

    QWidget* widget_ptr() { return this; }
    void restore_all_states_correspond_to_last_active_tab();
    void save_all_states_correspond_to_last_active_tab() {}

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_language_structure(QString& structure);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void set_this_programming_language(QString const& language);
    void set_this_formatting_style(QString const& style);
    void set_this_language_structure(QString const& structure);
    void set_this_filename_extensions(QString const& extensions);
    void set_these_raw_paths(QString const& paths);
    void set_first_programming_language();

public slots:
    void add_new_tab() {}
    void delete_current_tab() {}
    void rename_current_tab() {}
};

}  // namespace GUI

#endif
