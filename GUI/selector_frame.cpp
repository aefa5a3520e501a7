#include "GUI/selector_frame.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace GUI {

void lay_out_selector(QWidget* column, QString const& caption, QListWidget* list) {
    auto* label = new QLabel(caption, column);
    label->setStyleSheet("QLabel { font: bold; }");
    label->setAlignment(Qt::AlignCenter);
    label->setBuddy(list);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(list);
    column->setMinimumWidth(150);
    column->setMaximumWidth(220);
    list->setContextMenuPolicy(Qt::NoContextMenu);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setAccessibleName(caption);
    column->setAccessibleName(caption);
}

QFileDialog* import_dialog_on(QWidget* main_window, QString const& filter, QString const& name) {
    auto* dialog = new QFileDialog(main_window, QString(), QDir::homePath());
    dialog->setObjectName(name);
    dialog->setAccessibleName(name);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setFilter(QDir::AllDirs | QDir::Files | QDir::Drives | QDir::NoDotAndDotDot);
    dialog->setViewMode(QFileDialog::Detail);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilter(filter);
    return dialog;
}

void select_first_from(QListWidget* list, QStringList const& names) {
    for (int row = 0; row < list->count(); ++row) {
        if (names.contains(list->item(row)->text())) {
            list->setCurrentRow(row);
            return;
        }
    }
}

QString parent_directory_of_first(QStringList const& paths) {
    return paths.isEmpty() ? QString() : QFileInfo(paths.first()).absolutePath();
}

bool this_file_may_be_imported(QString const& path) {
    QFileInfo const file(path);
    return file.exists() && file.isFile() && file.isReadable() && file.isWritable();
}

}  // namespace GUI
