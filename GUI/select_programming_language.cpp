#include "GUI/select_programming_language.h"

#include "GUI/bundle_directory_alert.h"
#include "GUI/top_window.h"
#include "GUI/invitation.h"
#include "GUI/list_of_languages_itself.h"
#include "GUI/menu_actions.h"
#include "GUI/messages.h"
#include "GUI/selector_frame.h"
#include "core/kernel.h"
#include "core/path_to.h"
#include "core/settings_keys.h"
#include "core/store_files.h"

#include <QAction>
#include <QFileDialog>
#include <QScrollBar>
#include <QSettings>

namespace GUI {

class select_programming_language::implementation {
public:
    implementation(select_programming_language* owner, QWidget* main_window,
                   language_menu_import* import, language_menu_delete* deletion)
        : owner(owner), main_window(main_window), list(new list_of_languages_itself(owner)),
          import_action(import), delete_action(deletion) {
        lay_out_selector(owner, QObject::tr(text::language_caption), list);
        list->setObjectName("languages");
        QVariant const directory = QSettings().value(settings_key::parent_directory_of_last_imported_plugin);
        if (directory.isValid())
            last_directory = directory.toString();
    }

    void update_languages_list() {
        list->clear();
        std::vector<std::string> const languages = kernel().supported_programming_languages();
        if (!languages.empty()) {
            for (std::string const& language : languages)
                list->addItem(QString::fromStdString(language));
            if (languages.size() >= 2)
                delete_action->enable();
            else
                delete_action->disable();
            return;
        }
        delete_action->disable();
        show_invitation_in(list, {QObject::tr(text::please_import_languages)});
        emit owner->all_languages_have_been_deleted();
    }

    void select_prev_language_if_exists_base_on(int deleted_row) {
        if (list->count() == deleted_row && !this_list_is_empty(list))
            list->setCurrentRow(deleted_row - 1);
        else
            list->setCurrentRow(deleted_row);
    }

    void import(QStringList const& paths) {
        QStringList imported;
        for (QString const& path : paths) {
            if (!this_file_may_be_imported(path))
                continue;
            std::string const language = kernel().import_language_from(path.toStdString());
            if (!language.empty())
                imported << QString::fromStdString(language);
        }
        update_languages_list();
        select_first_from(list, imported);
    }

    // The directory that imported plugins go to: the bundle's, or the user's own where the
    // bundle cannot be written.
    bool plugins_directory_is_usable() const {
        QString const directory = new_plugins_directory::path();
        if (this_directory_is_usable(directory))
            return true;
        show_report_about_problems_with(directory, text::plugins_directory_is_wrong, main_window);
        return false;
    }

    select_programming_language* owner;
    QWidget* main_window;
    list_of_languages_itself* list;
    // Made at its first use: a file dialog costs the window's start more than all the rest.
    QFileDialog* the_dialog() {
        if (dialog != nullptr)
            return dialog;
        dialog = import_dialog_on(main_window, QObject::tr(text::language_plugins_filter), "import_languages_dialog");
        QObject::connect(dialog, &QFileDialog::filesSelected, owner,
                         &select_programming_language::import_languages_factually);
        QObject::connect(dialog, &QFileDialog::rejected, owner, &select_programming_language::rejected);
        return dialog;
    }

    QFileDialog* dialog = nullptr;
    QString last_directory;
    language_menu_import* import_action;
    language_menu_delete* delete_action;
};

select_programming_language::select_programming_language(QWidget* parent, QWidget* main_window,
                                                         language_menu_import* import,
                                                         language_menu_delete* deletion)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, main_window, import, deletion)) {
    auto* list = pimpl->list;
    connect(list, &QListWidget::itemSelectionChanged, this,
            &select_programming_language::maybe_language_was_selected);
    connect(import->widget_ptr(), &QAction::triggered, this, &select_programming_language::import_languages);
    connect(deletion->widget_ptr(), &QAction::triggered, this, &select_programming_language::delete_language);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &select_programming_language::save_slider_position);
    connect(list, &list_of_languages_itself::drag_n_dropped_valid_paths, this,
            &select_programming_language::import_drag_n_dropped_valid_plugins);
}

select_programming_language::~select_programming_language() = default;

QWidget* select_programming_language::widget_ptr() { return this; }

bool select_programming_language::there_is_no_programming_languages() const {
    return this_list_is_empty(pimpl->list);
}

void select_programming_language::set_first_programming_language() {
    pimpl->update_languages_list();
    if (pimpl->list->count() > 0)
        pimpl->list->setCurrentRow(0);
}

void select_programming_language::set_this_programming_language(QString const& language) {
    pimpl->update_languages_list();
    QList<QListWidgetItem*> const found = pimpl->list->findItems(language, Qt::MatchExactly);
    if (!found.isEmpty())
        pimpl->list->setCurrentItem(found.first());
}

void select_programming_language::restore_state_of_slider() {
    QVariant const position = QSettings().value(settings_key::language_slider_position);
    if (position.isValid())
        pimpl->list->verticalScrollBar()->setValue(position.toInt());
}

void select_programming_language::import_languages() {
    QFileDialog* const dialog = pimpl->the_dialog();
    dialog->setDirectory(pimpl->last_directory.isEmpty() ? QDir::homePath() : pimpl->last_directory);
    dialog->open();
}

void select_programming_language::import_drag_n_dropped_valid_plugins(QStringList const& valid_paths) {
    if (pimpl->plugins_directory_is_usable())
        pimpl->import(valid_paths);
}

void select_programming_language::delete_language() {
    QListWidgetItem* const item = pimpl->list->currentItem();
    if (item == nullptr || !item->isSelected() || there_is_no_programming_languages())
        return;
    int const row = pimpl->list->row(item);
    if (!pimpl->plugins_directory_is_usable())
        return;
    if (!kernel().delete_language_by(item->text().toStdString()))
        show_report_about_problems_with(path_to().plugins_directory(), text::plugins_directory_is_wrong,
                                        pimpl->main_window);
    pimpl->update_languages_list();
    pimpl->select_prev_language_if_exists_base_on(row);
}

void select_programming_language::maybe_language_was_selected() {
    if (!there_is_no_programming_languages() && !pimpl->list->selectedItems().isEmpty())
        emit language_was_selected();
}

void select_programming_language::save_slider_position(int current_position) {
    QSettings().setValue(settings_key::language_slider_position, current_position);
}

void select_programming_language::import_languages_factually(QStringList const& paths) {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
    pimpl->last_directory = parent_directory_of_first(paths);
    QSettings().setValue(settings_key::parent_directory_of_last_imported_plugin, pimpl->last_directory);
    if (pimpl->plugins_directory_is_usable())
        pimpl->import(paths);
}

void select_programming_language::rejected() {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
}

void select_programming_language::obtain_programming_language(QString& language) {
    if (there_is_no_programming_languages())
        return;
    QList<QListWidgetItem*> const selected = pimpl->list->selectedItems();
    if (!selected.isEmpty())
        language = selected.first()->text();
}

}  // namespace GUI
