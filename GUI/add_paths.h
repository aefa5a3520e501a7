// The two buttons that add paths through a file dialog over the main window: one chooses a
// directory, the other files with the current extensions.
#ifndef STYLE_TARNEL_GUI_ADD_PATHS_H
#define STYLE_TARNEL_GUI_ADD_PATHS_H

#include <QPushButton>

class QFileDialog;

namespace GUI {

class add_path_to_work_directory : public QPushButton {
    Q_OBJECT
public:
    add_path_to_work_directory(QWidget* parent, QWidget* main_window);

    void enable() { setEnabled(true); }
    void disable() { setEnabled(false); }

signals:
    void directory_was_choosed(QString const& directory);

public slots:
    void show_dialog();

private:
    QWidget* main_window;
    QFileDialog* dialog = nullptr;
};

class add_paths_to_work_files : public QPushButton {
    Q_OBJECT
public:
    add_paths_to_work_files(QWidget* parent, QWidget* main_window);

    void enable() { setEnabled(true); }
    void disable() { setEnabled(false); }

signals:
    void files_was_choosed(QStringList const& files);
    void obtain_filename_extensions(QString& extensions);

public slots:
    void show_dialog();

private:
    QWidget* main_window;
    QFileDialog* dialog = nullptr;
};

}  // namespace GUI

#endif
