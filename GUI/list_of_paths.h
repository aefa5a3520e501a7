// The list of the paths to revise, files and directories, with the list widget itself, which takes
// drops: adding without duplicates or missing paths, removing the selection, keeping the files in
// line with the extensions, forgetting the change records of what leaves the list.
#ifndef STYLE_TARNEL_GUI_LIST_OF_PATHS_H
#define STYLE_TARNEL_GUI_LIST_OF_PATHS_H

#include "GUI/files_dropped.h"

#include <QListWidget>
#include <QWidget>

#include <memory>

namespace GUI {

class list_of_paths_itself : public QListWidget {
    Q_OBJECT
public:
    explicit list_of_paths_itself(QWidget* parent);

signals:
    void drag_n_dropped_valid_paths(QStringList const& paths);
    void obtain_filename_extensions(QString& extensions);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    files_dropped dropped;
};

class list_of_paths : public QWidget {
    Q_OBJECT
public:
    explicit list_of_paths(QWidget* parent);
    ~list_of_paths() override;

    QWidget* widget_ptr();
    QListWidget* list_ptr();

signals:
    void path_was_selected();
    void no_selected_paths_anymore();
    void at_least_one_path_was_added();
    void no_paths_anymore();
    void obtain_programming_language(QString& language);
    void obtain_filename_extensions(QString& extensions);
    // The list is empty or not: "Revise all paths forcibly" follows.
    void there_are_paths(bool yes);

public slots:
    void show(QString const& path);
    void show(QStringList const& paths);
    void remove_selected_items();
    void obtain_raw_paths_to_revising_files(QStringList& paths);
    void obtain_selected_raw_paths_to_revising_files(QStringList& paths);
    void check_selection();
    void check_list_of_file_extensions(QString const& extensions);
    void show_drag_n_dropped_valid_paths(QStringList const& paths);
    void delete_all();
    void set_these_raw_paths(QString const& raw_paths);
    void save_slider_position(int position);
    void restore_state_of_slider();

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

// The extensions of a text such as the extensions field holds: split at spaces, empty parts
// skipped.
QStringList extensions_in(QString const& text);
// The paths of a raw paths text as a task tab keeps them: each followed by a line feed.
QStringList paths_in(QString const& raw_paths);

}  // namespace GUI

#endif
