// The "Preview" pane beside the form editor: how much of the shown task the current style would
// change (counted over all its files, the most changed listed), and one file of the task (chosen
// among its files, the first by default) as the style would revise it, its changed lines marked,
// with buttons that jump from change to change. It follows every change that takes effect (a saved
// form, another language, style or task, the paths and extensions); the file is walked, read and
// revised off the GUI thread, and a result that a newer change overtook is dropped.
#ifndef STYLE_TARNEL_GUI_PREVIEW_OF_CODE_H
#define STYLE_TARNEL_GUI_PREVIEW_OF_CODE_H

#include "core/changes_under_style.h"
#include "core/revision_task.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <vector>

class QComboBox;
class QPlainTextEdit;
class QLabel;
class QListWidget;
class QListWidgetItem;

namespace GUI {

// What the worker found for one request of the preview.
struct preview_outcome {
    enum class end { revised, refused, not_started, unreadable, no_files };
    // The request's number: only the newest one is shown.
    unsigned long generation = 0;
    end how = end::no_files;
    // The task's paths, its files, and the one previewed.
    QStringList paths;
    QStringList files;
    QString file;
    // The text shown: the revised one, or the file as it is when it was not revised.
    QString text;
    // Why a revision could not start, as the run words it.
    QString report;
    // The lines (from 0) of `text` that differ from the file; how many lines of the file the
    // revised text no longer holds, and how many lines the diff adds; the file's line count.
    std::vector<int> changed_lines;
    int lines_changed = 0;
    int lines_added = 0;
    int lines_of_file = 0;
};

class preview_of_code : public QWidget {
    Q_OBJECT
public:
    explicit preview_of_code(QWidget* parent);
    ~preview_of_code() override;

    QWidget* widget_ptr();
    // The number of the newest request; an outcome of another number is dropped.
    unsigned long generation() const;
    QComboBox* chooser() const;
    QPlainTextEdit* view() const;
    QLabel* status() const;
    // Above the file: how much of the whole task the style changes, and the files it changes most.
    QLabel* figure() const;
    QListWidget* most_changed_files() const;
    // The number of the newest count; a count of another number is dropped.
    unsigned long count_generation() const;

signals:
    void obtain_programming_language(QString& language);
    void obtain_formatting_style(QString& style);
    void obtain_filename_extensions(QString& extensions);
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    // An outcome was shown (for whoever waits for the preview).
    void preview_was_shown();
    // The figure of the whole task was shown.
    void changes_were_counted();

public slots:
    // Something the preview depends on changed: a new request follows once the event loop is back
    // (the changes of one step, such as another task, make one request).
    void something_has_changed();
    // A new request now, of the file chosen.
    void update_now();
    void disable_with_cleanup();
    void go_to_next_change();
    void go_to_previous_change();
    // The outcome of a request, on the GUI thread; dropped unless it is the newest one's.
    void show_outcome(GUI::preview_outcome const& outcome);
    // The count of the task's changes numbered `generation`, on the GUI thread; dropped unless it
    // is the newest.
    void show_changes(changes_under_style const& changes, unsigned long generation);

private slots:
    void file_was_chosen(int index);
    void worker_has_finished(GUI::preview_outcome const& outcome);
    void count_went_on(unsigned long done, int found);
    void count_has_finished(changes_under_style const& changes, unsigned long generation);
    void changed_file_was_clicked(QListWidgetItem* item);

private:
    bool task_asked(revision_task& task);
    void preview_again();
    void count_again();

    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
