// The task tabs above the groups: each tab keeps one task (language, style, structure, extensions,
// paths). The groups show the current tab's task; leaving a tab saves what they show under its
// name, entering one loads its task. Tab names and the current tab survive a restart; a single
// task shows no bar at all.
#ifndef STYLE_TARNEL_GUI_TASK_TABS_H
#define STYLE_TARNEL_GUI_TASK_TABS_H

#include <QWidget>

#include <memory>

namespace GUI {

class tab_menu_new;
class tab_menu_close;
class tab_menu_rename;
class task_tabs_itself;

class task_tabs : public QWidget {
    Q_OBJECT
public:
    task_tabs(QWidget* parent, tab_menu_new* add, tab_menu_close* close, tab_menu_rename* rename);
    ~task_tabs() override;

    QWidget* widget_ptr();
    task_tabs_itself* bar() const;
    void restore_all_states_correspond_to_last_active_tab();
    void save_all_states_correspond_to_last_active_tab();

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
    void add_new_tab();
    void delete_tab(int index);
    void delete_current_tab();
    void tab_was_renamed(QString const& old_name);
    void another_tab_clicked();
    void another_tab_clicked_finally();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
