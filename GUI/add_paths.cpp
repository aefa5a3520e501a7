#include "GUI/add_paths.h"

#include "GUI/list_of_paths.h"
#include "GUI/messages.h"
#include "GUI/top_window.h"
#include "core/settings_keys.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QSettings>

namespace GUI {

namespace {

// A window-modal dialog on the main window, titled as its button, made at its first use and kept between uses; the
// one for directories lists directories only and takes several at once.
QFileDialog* path_dialog_on(QWidget* main_window, QFileDialog::FileMode mode, char const* name,
                            QString const& title) {
    auto* dialog = new QFileDialog(main_window, title);
    dialog->setObjectName(name);
    dialog->setAccessibleName(name);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setFileMode(mode);
    dialog->setViewMode(QFileDialog::Detail);
    if (mode == QFileDialog::Directory) {
        // Directories only, and several at once: the mode alone lists files too and selects one.
        dialog->setOption(QFileDialog::ShowDirsOnly);
        dialog->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
        for (char const* view : {"listView", "treeView"})
            if (auto* shown = dialog->findChild<QAbstractItemView*>(view))
                shown->setSelectionMode(QAbstractItemView::ExtendedSelection);
    }
    QObject::connect(dialog, &QFileDialog::finished, main_window,
                     [main_window](int) { show_main_window_as_top_window(main_window); });
    return dialog;
}

QString start_directory(char const* key) {
    QVariant const directory = QSettings().value(key);
    return directory.isValid() ? directory.toString() : QDir::homePath();
}

void look_like_a_paths_button(QPushButton* button, char const* name) {
    button->setObjectName(name);
    button->setAccessibleName(button->text().remove('&'));
    button->setMinimumWidth(140);
    button->setAutoDefault(true);
}

}  // namespace

add_path_to_work_directory::add_path_to_work_directory(QWidget* parent, QWidget* main_window)
    : QPushButton(tr(text::add_directories), parent), main_window(main_window) {
    look_like_a_paths_button(this, "add_directories");
    connect(this, &QPushButton::clicked, this, &add_path_to_work_directory::show_dialog);
}

void add_path_to_work_directory::show_dialog() {
    if (dialog == nullptr) {
        dialog = path_dialog_on(main_window, QFileDialog::Directory, "add_directories_dialog",
                                text().remove('&'));
        connect(dialog, &QFileDialog::filesSelected, this, [this](QStringList const& directories) {
            for (QString const& directory : directories)
                emit directory_was_choosed(directory);
        });
    }
    dialog->setDirectory(start_directory(settings_key::parent_directory_of_last_chosen_directory));
    dialog->open();
}

add_paths_to_work_files::add_paths_to_work_files(QWidget* parent, QWidget* main_window)
    : QPushButton(tr(text::add_files), parent), main_window(main_window) {
    look_like_a_paths_button(this, "add_files");
    connect(this, &QPushButton::clicked, this, &add_paths_to_work_files::show_dialog);
}

void add_paths_to_work_files::show_dialog() {
    if (dialog == nullptr) {
        dialog = path_dialog_on(main_window, QFileDialog::ExistingFiles, "add_files_dialog", text().remove('&'));
        connect(dialog, &QFileDialog::filesSelected, this, &add_paths_to_work_files::files_was_choosed);
    }
    QString extensions;
    emit obtain_filename_extensions(extensions);
    QStringList patterns;
    for (QString const& extension : extensions_in(extensions))
        patterns << "*." + extension;
    dialog->setNameFilter(patterns.join(' '));
    dialog->setDirectory(start_directory(settings_key::parent_directory_of_last_chosen_file));
    dialog->open();
}

}  // namespace GUI
