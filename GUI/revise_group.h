// The lower group of the window: "&Go!" starts a revision of the shown task with its progress
// dialog, "&View report" opens the report of the last run. The revise actions of the menu land
// here too.
#ifndef STYLE_TARNEL_GUI_REVISE_GROUP_H
#define STYLE_TARNEL_GUI_REVISE_GROUP_H

#include <QPushButton>
#include <QWidget>

#include <memory>

namespace GUI {

class revise_menu_all;
class revise_menu_changed_lines;

class start_revise : public QPushButton {
    Q_OBJECT
public:
    explicit start_revise(QWidget* parent);
    void enable() { setEnabled(true); }
    void disable() { setEnabled(false); }
};

class view_report : public QPushButton {
    Q_OBJECT
public:
    explicit view_report(QWidget* parent);
    void enable() { setEnabled(true); }
    void disable() { setEnabled(false); }
};

class revise_group : public QWidget {
    Q_OBJECT
public:
    // `parent` is the main window, over which the progress dialog is modal. The two actions are
    // enabled and disabled with "&Go!".
    revise_group(QWidget* parent, revise_menu_all* all, revise_menu_changed_lines* changed_lines);
    ~revise_group() override;

    QWidget* widget_ptr();

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void obtain_selected_raw_paths_to_revising_files(QStringList& paths);
    void obtain_geometry_of_main_window(QRect& geometry);
    void go_from_dock_menu();
    void view_report_from_dock_menu();

public slots:
    void at_least_one_path_was_added();
    void no_extensions_anymore();
    void no_paths_anymore();
    void all_styles_have_been_deleted();
    void revise_all();
    void revise_changed_lines();
    void revise_it_forcibly();
    void revise_all_forcibly();
    void set_enabled();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
