// The revision starter and its progress dialog: forms the task from the groups (forgetting change
// records first for a forced revision, or asking for the lines changed in git alone), starts the
// run on its worker thread, turns the worker's four callbacks into queued signals, and stops the
// run after the file at hand when asked. A revision of changed lines that cannot start says why in
// a message box as well as in the report.
#ifndef STYLE_TARNEL_GUI_SHOW_REVISE_H
#define STYLE_TARNEL_GUI_SHOW_REVISE_H

#include <QWidget>

#include <memory>
#include <string>

struct revision_task;

namespace GUI {

class show_revise : public QWidget {
    Q_OBJECT
public:
    // `main_window` is the window over which the progress dialog is modal.
    show_revise(QWidget* parent, QWidget* main_window);
    ~show_revise() override;

    // Callback targets, called from the worker thread: each has the matching signal emitted on
    // the GUI thread.
    void maximum_for_progress(int maximum);
    void value_for_progress(int value);
    void text(std::string const& status);
    void finished(std::string const& report);
    // A run that could not start: `report` says why.
    void refused(std::string const& report);

    QWidget* progress_dialog() const;

signals:
    void set_maximum_for_progress(int maximum);
    void set_value_for_progress(int value);
    void set_text(QString const& status);
    void revision_begin();
    void revision_is_finished(QString const& report);
    // A revision of changed lines could not start; `reason` is the report's, without its blank
    // lines.
    void revision_was_refused(QString const& reason);
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void obtain_selected_raw_paths_to_revising_files(QStringList& paths);
    void obtain_geometry_of_main_window(QRect& geometry);

public slots:
    void view();
    void view_with_force_revision_of_it();
    void view_with_force_revision_of_all();
    void view_changed_lines();
    void stop_revision();

private:
    void view(bool force_it, bool force_all);
    // The shown task: language, style, extensions and all paths.
    revision_task task_shown();
    // Starts `task` on a worker thread; `refusal_shown`: a run that cannot start says why in a
    // message box too.
    void start(revision_task const& task, bool refusal_shown);

    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
