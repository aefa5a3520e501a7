#include "GUI/select_formatting_style.h"

#include "GUI/bundle_directory_alert.h"
#include "GUI/critical_alert.h"
#include "GUI/editor_configuration.h"
#include "GUI/top_window.h"
#include "GUI/invitation.h"
#include "GUI/list_of_styles_itself.h"
#include "GUI/menu_actions.h"
#include "GUI/messages.h"
#include "GUI/selector_frame.h"
#include "GUI/style_renamer.h"
#include "core/kernel.h"
#include "core/path_to.h"
#include "core/settings_keys.h"
#include "core/store_files.h"
#include "core/style_addon.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSettings>
#include <QToolTip>

namespace GUI {

class select_formatting_style::implementation {
public:
    implementation(select_formatting_style* owner, QWidget* main_window, style_actions const& actions)
        : owner(owner), main_window(main_window), list(new list_of_styles_itself(owner)),
          actions(actions) {
        lay_out_selector(owner, QObject::tr(text::style_caption), list);
        list->setObjectName("styles");
        list->setItemDelegate(new EditorDelegate(owner, list));
        list->setEditTriggers(QAbstractItemView::NoEditTriggers);
        QSettings const settings;
        QVariant const imported = settings.value(settings_key::parent_directory_of_last_imported_addon);
        if (imported.isValid())
            last_imported_directory = imported.toString();
        QVariant const exported = settings.value(settings_key::parent_directory_of_last_exported_addon);
        if (exported.isValid())
            last_exported_directory = exported.toString();
    }

    QString current_language() const {
        QString language;
        emit owner->obtain_programming_language(language);
        return language;
    }

    QString selected_style() const {
        QString style;
        owner->obtain_formatting_style(style);
        return style;
    }

    void update_formatting_styles_list() {
        renamer = nullptr;
        list->clear();
        QString const language = current_language();
        auto const styles = kernel().supported_formatting_styles_for(language.toStdString());
        if (!styles)
            return;
        if (!styles->empty()) {
            actions.exporting->enable();
            actions.rename->enable();
            if (styles->size() == 1)
                actions.deletion->disable();
            else
                actions.deletion->enable();
            for (style_description const& style : *styles) {
                auto* item = new QListWidgetItem(QString::fromStdString(style.style), list);
                item->setFlags(item->flags() | Qt::ItemIsEditable);
            }
        } else {
            show_invitation_in(list, {QObject::tr(text::please_import_styles),
                                      QObject::tr(text::for_language_prefix) + language +
                                          QObject::tr(text::for_language_suffix)});
            actions.exporting->disable();
            actions.deletion->disable();
            actions.rename->disable();
            emit owner->all_styles_have_been_deleted();
        }
        if (list->count() > 0)
            list->setCurrentRow(0);
    }

    void import(QStringList const& paths) {
        std::string const language = current_language().toStdString();
        QStringList imported;
        for (QString const& path : paths) {
            if (!this_file_may_be_imported(path))
                continue;
            style_description const style = kernel().import_style_from(path.toStdString(), language);
            if (!style.is_empty() && style.language == language)
                imported << QString::fromStdString(style.style);
        }
        update_formatting_styles_list();
        select_first_from(list, imported);
    }

    // The directory that imported and changed styles go to: the bundle's, or the user's own
    // where the bundle cannot be written.
    bool addons_directory_is_usable() const {
        QString const directory = new_addons_directory::path();
        if (this_directory_is_usable(directory))
            return true;
        show_report_about_problems_with(directory, text::addons_directory_is_wrong, main_window);
        return false;
    }

    // Whether another item already carries `name`.
    bool some_styles_duplicate(QString const& name) const {
        QListWidgetItem const* renamed = list->currentItem();
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row) != renamed && list->item(row)->text() == name)
                return true;
        return false;
    }

    void refuse_renaming(char const* why) {
        QWidget* const at = renamer ? static_cast<QWidget*>(renamer.data()) : list;
        QToolTip::showText(at->mapToGlobal(QPoint(0, 0)), QObject::tr(why), at);
        update_formatting_styles_list();
    }

    select_formatting_style* owner;
    QWidget* main_window;
    list_of_styles_itself* list;
    // Made at its first use: a file dialog costs the window's start more than all the rest.
    QFileDialog* the_dialog() {
        if (dialog != nullptr)
            return dialog;
        dialog = import_dialog_on(main_window, QObject::tr(text::addons_filter), "import_styles_dialog");
        // Editors' configuration files are hidden files: the dialog shows them.
        dialog->setFilter(dialog->filter() | QDir::Hidden);
        dialog->setNameFilters({QObject::tr(text::addons_or_configuration_filter), QObject::tr(text::addons_filter),
                                QObject::tr(text::configuration_files)});
        QObject::connect(dialog, &QFileDialog::filesSelected, owner, &select_formatting_style::import_styles_factually);
        QObject::connect(dialog, &QFileDialog::rejected, owner, &select_formatting_style::rejected);
        return dialog;
    }

    QFileDialog* dialog = nullptr;
    style_actions actions;
    QString last_imported_directory;
    QString last_exported_directory;
    QString renaming_style;
    QPointer<QLineEdit> renamer;
};

select_formatting_style::select_formatting_style(QWidget* parent, QWidget* main_window,
                                                 style_actions const& actions)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, main_window, actions)) {
    auto* list = pimpl->list;
    connect(list, &QListWidget::itemSelectionChanged, this, &select_formatting_style::maybe_style_was_selected);
    connect(actions.import->widget_ptr(), &QAction::triggered, this, &select_formatting_style::import_styles);
    connect(actions.exporting->widget_ptr(), &QAction::triggered, this, &select_formatting_style::export_style);
    connect(actions.deletion->widget_ptr(), &QAction::triggered, this, &select_formatting_style::delete_style);
    connect(actions.rename->widget_ptr(), &QAction::triggered, this, &select_formatting_style::rename_style);
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &select_formatting_style::save_slider_position);
    connect(list, &list_of_styles_itself::drag_n_dropped_valid_paths, this,
            &select_formatting_style::import_drag_n_dropped_valid_addons);
    connect(list, &list_of_styles_itself::obtain_programming_language, this,
            &select_formatting_style::obtain_programming_language);
}

select_formatting_style::~select_formatting_style() {
    // A renaming still open ends with the list, and its loss of focus must find nothing to undo.
    pimpl->renamer = nullptr;
    delete pimpl->list;
}

QWidget* select_formatting_style::widget_ptr() { return this; }

void select_formatting_style::remember_current(QLineEdit* editor) { pimpl->renamer = editor; }

void select_formatting_style::store_renaming_style() {
    QListWidgetItem const* item = pimpl->list->currentItem();
    pimpl->renaming_style = item ? item->text() : QString();
}

void select_formatting_style::set_this_formatting_style(QString const& style) {
    pimpl->update_formatting_styles_list();
    QList<QListWidgetItem*> const found = pimpl->list->findItems(style, Qt::MatchExactly);
    if (!found.isEmpty())
        pimpl->list->setCurrentItem(found.first());
}

void select_formatting_style::restore_state_of_slider() {
    QVariant const position = QSettings().value(settings_key::style_slider_position);
    if (position.isValid())
        pimpl->list->verticalScrollBar()->setValue(position.toInt());
}

void select_formatting_style::show() {
    enable();
    pimpl->actions.import->enable();
    pimpl->update_formatting_styles_list();
}

void select_formatting_style::enable() { setEnabled(true); }
void select_formatting_style::disable() { setEnabled(false); }

void select_formatting_style::disable_with_cleanup() {
    pimpl->renamer = nullptr;
    pimpl->list->clear();
    disable();
}

void select_formatting_style::check_renaming(QString const& edited_name) {
    QLineEdit* const editor = pimpl->renamer;
    if (editor == nullptr || this_is_a_style_name(edited_name.toStdString()))
        return;
    editor->backspace();
    QToolTip::showText(editor->mapToGlobal(QPoint(0, 0)), tr(text::in_English_please), editor);
}

void select_formatting_style::renaming_finished() {
    if (pimpl->renamer == nullptr)
        return;
    QString const new_name = pimpl->renamer->text();
    if (new_name.isEmpty()) {
        pimpl->refuse_renaming(text::name_cannot_be_empty);
        return;
    }
    if (pimpl->some_styles_duplicate(new_name)) {
        pimpl->refuse_renaming(text::such_style_already_exists);
        return;
    }
    // The editor is done: its loss of focus, which follows, must not undo the edit.
    pimpl->renamer = nullptr;
    if (new_name == pimpl->renaming_style)
        return;
    std::string const language = pimpl->current_language().toStdString();
    // A style the user cannot change stays as it is beside the user's renamed copy.
    bool const copied = kernel().style_is_read_only(pimpl->renaming_style.toStdString(), language);
    if (!kernel().rename_style(pimpl->renaming_style.toStdString(), language, new_name.toStdString())) {
        // The store kept the old name: the list shows it again.
        pimpl->update_formatting_styles_list();
        set_this_formatting_style(pimpl->renaming_style);
    } else if (copied) {
        set_this_formatting_style(new_name);
    }
}

void select_formatting_style::renaming_finished_by_ESC() {
    if (pimpl->renamer == nullptr || sender() != pimpl->renamer)
        return;
    pimpl->update_formatting_styles_list();
}

void select_formatting_style::import_styles() {
    QString const directory = pimpl->last_imported_directory;
    QFileDialog* const dialog = pimpl->the_dialog();
    dialog->setDirectory(directory.isEmpty() ? QDir::homePath() : directory);
    dialog->open();
}

void select_formatting_style::import_drag_n_dropped_valid_addons(QStringList const& valid_paths) {
    if (pimpl->addons_directory_is_usable())
        pimpl->import(valid_paths);
}

void select_formatting_style::export_style() {
    QString const style = pimpl->selected_style();
    if (style.isEmpty())
        return;
    QString const offered_name = style + "[" + pimpl->current_language() + "]" + text::addon_suffix;
    QString const directory = pimpl->last_exported_directory.isEmpty() ? QDir::homePath()
                                                                        : pimpl->last_exported_directory;
    auto* dialog = new QFileDialog(pimpl->main_window, QString(), directory);
    dialog->setObjectName("export_style_dialog");
    dialog->setAccessibleName(tr("Export style"));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->selectFile(offered_name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, &select_formatting_style::export_style_factually);
    dialog->open();
}

void select_formatting_style::export_style_factually(QString const& path) {
    show_main_window_as_top_window(pimpl->main_window);
    kernel().export_style(pimpl->selected_style().toStdString(), pimpl->current_language().toStdString(),
                          path.toStdString());
}

void select_formatting_style::delete_style() {
    QString const style = pimpl->selected_style();
    if (style.isEmpty())
        return;
    if (kernel().style_is_read_only(style.toStdString(), pimpl->current_language().toStdString())) {
        show_critical_alert(tr(text::cannot_delete_installed_style), QString(), pimpl->main_window);
        return;
    }
    if (!pimpl->addons_directory_is_usable())
        return;
    kernel().delete_style_by(style.toStdString(), pimpl->current_language().toStdString());
    pimpl->update_formatting_styles_list();
}

void select_formatting_style::rename_style() {
    QListWidgetItem* const item = pimpl->list->currentItem();
    if (item == nullptr || !item->isSelected() || this_list_is_empty(pimpl->list))
        return;
    pimpl->list->editItem(item);
}

void select_formatting_style::obtain_formatting_style(QString& style) {
    if (this_list_is_empty(pimpl->list))
        return;
    QList<QListWidgetItem*> const selected = pimpl->list->selectedItems();
    if (!selected.isEmpty())
        style = selected.first()->text();
}

void select_formatting_style::maybe_style_was_selected() {
    if (!this_list_is_empty(pimpl->list) && !pimpl->list->selectedItems().isEmpty())
        emit style_was_selected();
}

void select_formatting_style::save_slider_position(int current_position) {
    QSettings().setValue(settings_key::style_slider_position, current_position);
}

void select_formatting_style::import_styles_factually(QStringList const& paths) {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
    pimpl->last_imported_directory = parent_directory_of_first(paths);
    QSettings settings;
    settings.setValue(settings_key::parent_directory_of_last_imported_addon, pimpl->last_imported_directory);
    settings.sync();
    if (!pimpl->addons_directory_is_usable())
        return;
    QStringList addons, configurations;
    for (QString const& path : paths)
        (is_editor_configuration(path) ? configurations : addons) << path;
    if (!addons.isEmpty())
        pimpl->import(addons);
    if (!configurations.isEmpty())
        emit editor_configurations_were_chosen(configurations);
}

void select_formatting_style::rejected() {
    if (pimpl->dialog != nullptr)
        pimpl->dialog->hide();
    show_main_window_as_top_window(pimpl->main_window);
}

}  // namespace GUI
