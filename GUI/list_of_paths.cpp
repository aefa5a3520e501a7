#include "GUI/list_of_paths.h"

#include "GUI/messages.h"
#include "core/kernel.h"
#include "core/settings_keys.h"

#include <QDir>
#include <QFileInfo>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>

namespace GUI {

QStringList extensions_in(QString const& text) { return text.split(' ', Qt::SkipEmptyParts); }

QStringList paths_in(QString const& raw_paths) { return raw_paths.split('\n', Qt::SkipEmptyParts); }

list_of_paths_itself::list_of_paths_itself(QWidget* parent) : QListWidget(parent) {
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setDragDropMode(QAbstractItemView::DropOnly);
}

// A drop takes directories, and files whose complete suffix (all after the first dot) is one of
// the extensions: "x.tar.gz" is not a "gz" file here.
void list_of_paths_itself::dragEnterEvent(QDragEnterEvent* event) {
    QString extensions;
    emit obtain_filename_extensions(extensions);
    QStringList const allowed = extensions_in(extensions);
    dropped.enter(event, [&](QFileInfo const& path) {
        return path.isDir() || (path.isFile() && allowed.contains(path.completeSuffix()));
    });
}

void list_of_paths_itself::dragMoveEvent(QDragMoveEvent* event) { dropped.move(event); }

void list_of_paths_itself::dropEvent(QDropEvent* event) {
    QStringList const paths = dropped.drop(event);
    if (!paths.isEmpty())
        emit drag_n_dropped_valid_paths(paths);
}

class list_of_paths::implementation {
public:
    implementation(list_of_paths* owner) : owner(owner), list(new list_of_paths_itself(owner)) {
        list->setObjectName("paths");
        list->setAccessibleName(QObject::tr(text::paths_caption));
        list->setContextMenuPolicy(Qt::NoContextMenu);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->verticalScrollBar()->setTracking(true);
        auto* layout = new QVBoxLayout(owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(list);
    }

    bool this_path_is_shown(QString const& path) const {
        return !list->findItems(path, Qt::MatchExactly).isEmpty();
    }

    void add_new_paths_based_on(QStringList const& paths) {
        for (QString path : paths) {
            QFileInfo const info(path);
            if (!info.exists()) {
                kernel().forget_change_records_of({path});
                continue;
            }
            if (info.isDir() && path.endsWith('/') && path != "/")
                path.chop(1);
            if (this_path_is_shown(path))
                continue;
            auto* item = new QListWidgetItem(
                QIcon(info.isDir() ? ":/images/folder_osx.png" : ":/images/file_osx.png"), path, list);
            item->setToolTip(path);
            emit owner->at_least_one_path_was_added();
        }
        emit owner->there_are_paths(list->count() > 0);
    }

    // Empties the list; a selection that goes with it is said, as the selection's own change would.
    void clear() {
        bool const something_was_selected = !list->selectedItems().isEmpty();
        {
            QSignalBlocker const quiet(list);
            list->clear();
        }
        if (something_was_selected)
            emit owner->no_selected_paths_anymore();
    }

    list_of_paths* owner;
    list_of_paths_itself* list;
};

list_of_paths::list_of_paths(QWidget* parent)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this)) {
    auto* list = pimpl->list;
    connect(list, &QListWidget::itemSelectionChanged, this, &list_of_paths::check_selection);
    connect(list, &list_of_paths_itself::drag_n_dropped_valid_paths, this,
            &list_of_paths::show_drag_n_dropped_valid_paths);
    connect(list, &list_of_paths_itself::obtain_filename_extensions, this,
            &list_of_paths::obtain_filename_extensions);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, &list_of_paths::save_slider_position);
}

list_of_paths::~list_of_paths() = default;

QWidget* list_of_paths::widget_ptr() { return this; }

QListWidget* list_of_paths::list_ptr() { return pimpl->list; }

void list_of_paths::show(QString const& path) { pimpl->add_new_paths_based_on({path}); }

void list_of_paths::show(QStringList const& paths) { pimpl->add_new_paths_based_on(paths); }

void list_of_paths::show_drag_n_dropped_valid_paths(QStringList const& paths) {
    pimpl->add_new_paths_based_on(paths);
}

void list_of_paths::remove_selected_items() {
    QListWidget* const list = pimpl->list;
    QList<QListWidgetItem*> const selected = list->selectedItems();
    if (selected.isEmpty())
        return;
    int first_row = list->count();
    QStringList paths;
    for (QListWidgetItem* item : selected) {
        first_row = std::min(first_row, list->row(item));
        paths << item->text();
    }
    kernel().forget_change_records_of(paths);
    qDeleteAll(selected);
    if (list->count() == 0) {
        emit there_are_paths(false);
        emit no_selected_paths_anymore();
        emit no_paths_anymore();
        return;
    }
    list->setCurrentRow(std::min(first_row, list->count() - 1));
}

void list_of_paths::obtain_raw_paths_to_revising_files(QStringList& paths) {
    for (int row = 0; row < pimpl->list->count(); ++row)
        paths << pimpl->list->item(row)->text();
}

void list_of_paths::obtain_selected_raw_paths_to_revising_files(QStringList& paths) {
    for (int row = 0; row < pimpl->list->count(); ++row)
        if (pimpl->list->item(row)->isSelected())
            paths << pimpl->list->item(row)->text();
}

void list_of_paths::check_selection() {
    if (pimpl->list->selectedItems().isEmpty())
        emit no_selected_paths_anymore();
    else
        emit path_was_selected();
}

// The files leave by their last suffix (all after the last dot); directories stay.
void list_of_paths::check_list_of_file_extensions(QString const& extensions) {
    QStringList const allowed = extensions_in(extensions);
    QListWidget* const list = pimpl->list;
    bool removed = false;
    for (int row = list->count() - 1; row >= 0; --row) {
        QFileInfo const path(list->item(row)->text());
        if (path.isDir() || allowed.contains(path.suffix()))
            continue;
        delete list->takeItem(row);
        removed = true;
    }
    if (removed && list->count() == 0) {
        emit there_are_paths(false);
        emit no_selected_paths_anymore();
        emit no_paths_anymore();
    }
}

// On a change of language: the forced revisions stay as the list last said, so that a fresh start
// offers them and "this path" with nothing selected revises them all.
void list_of_paths::delete_all() {
    QStringList paths;
    obtain_raw_paths_to_revising_files(paths);
    kernel().forget_change_records_of(paths);
    pimpl->clear();
    emit no_paths_anymore();
}

void list_of_paths::set_these_raw_paths(QString const& raw_paths) {
    pimpl->clear();
    emit no_paths_anymore();
    pimpl->add_new_paths_based_on(paths_in(raw_paths));
}

void list_of_paths::save_slider_position(int position) {
    QSettings().setValue(settings_key::saved_paths_slider_position, position);
}

void list_of_paths::restore_state_of_slider() {
    QVariant const position = QSettings().value(settings_key::saved_paths_slider_position);
    if (position.isValid())
        pimpl->list->verticalScrollBar()->setValue(position.toInt());
}

}  // namespace GUI
