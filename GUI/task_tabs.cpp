#include "GUI/task_tabs.h"

#include "GUI/last_info_for_tab.h"
#include "GUI/list_of_paths.h"
#include "GUI/menu_actions.h"
#include "GUI/messages.h"
#include "GUI/task_tabs_itself.h"
#include "core/kernel.h"
#include "core/settings_keys.h"

#include <QAction>
#include <QSettings>
#include <QVBoxLayout>

namespace GUI {

class task_tabs::implementation {
public:
    implementation(task_tabs* owner, tab_menu_new* add, tab_menu_close* close, tab_menu_rename* rename)
        : owner(owner), bar(new task_tabs_itself(owner)), add(add), close(close), rename(rename) {
        auto* layout = new QVBoxLayout(owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(bar);
        QSignalBlocker const quiet(bar);
        QSettings const settings;
        QVariant const tabs = settings.value(settings_key::tabs);
        if (!tabs.isValid() || tabs.toStringList().isEmpty())
            bar->addTab(QObject::tr(text::first_task));
        else
            for (QString const& name : tabs.toStringList())
                bar->addTab(name);
        QVariant const active = settings.value(settings_key::active_tab);
        if (active.isValid())
            for (int index = 0; index < bar->count(); ++index)
                if (bar->tabText(index) == active.toString()) {
                    bar->setCurrentIndex(index);
                    break;
                }
        shown_tab = bar->tabText(bar->currentIndex());
        follow_the_number_of_tabs();
    }

    void follow_the_number_of_tabs() {
        bool const several = bar->count() >= 2;
        bar->setVisible(several);
        if (several) {
            close->enable();
            rename->enable();
        } else {
            close->disable();
            rename->disable();
        }
    }

    void save_the_shown_task_as(QString const& tab) {
        QString language, style, structure, extensions;
        QStringList paths;
        emit owner->obtain_programming_language(language);
        emit owner->obtain_formatting_style(style);
        emit owner->obtain_language_structure(structure);
        emit owner->obtain_filename_extensions(extensions);
        emit owner->obtain_raw_paths_to_revising_files(paths);
        last_info_for_tab(tab).save(language, style, structure, extensions, paths);
    }

    void load_the_task_of(QString const& tab) {
        last_info_for_tab const info(tab);
        shown_tab = tab;
        // The paths of the task left go first, as they are: a language change clears the list
        // and forgets the change records of what it holds, which are the other task's records.
        // An empty list is left alone, and with it what it last said of the forced revisions.
        if (!shown_paths().isEmpty())
            emit owner->set_these_raw_paths(QString());
        if (!info.was_saved()) {
            emit owner->set_first_programming_language();
            return;
        }
        emit owner->set_this_programming_language(info.programming_language());
        emit owner->set_this_formatting_style(info.formatting_style());
        emit owner->set_this_language_structure(info.language_structure());
        emit owner->set_this_filename_extensions(info.filename_extensions());
        emit owner->set_these_raw_paths(info.raw_paths_to_revising_files());
    }

    QStringList shown_paths() const {
        QStringList paths;
        emit owner->obtain_raw_paths_to_revising_files(paths);
        return paths;
    }

    task_tabs* owner;
    task_tabs_itself* bar;
    tab_menu_new* add;
    tab_menu_close* close;
    tab_menu_rename* rename;
    unsigned counter = 0;
    // The tab whose task the groups show: its task is saved when another tab becomes current,
    // whichever way (mouse, keyboard, a closed neighbour).
    QString shown_tab;
};

task_tabs::task_tabs(QWidget* parent, tab_menu_new* add, tab_menu_close* close, tab_menu_rename* rename)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, add, close, rename)) {
    setAccessibleName(tr("Tasks"));
    task_tabs_itself* const bar = pimpl->bar;
    connect(bar, &QTabBar::tabCloseRequested, this, &task_tabs::delete_tab);
    connect(add->widget_ptr(), &QAction::triggered, this, &task_tabs::add_new_tab);
    connect(close->widget_ptr(), &QAction::triggered, this, &task_tabs::delete_current_tab);
    connect(rename->widget_ptr(), &QAction::triggered, bar, &task_tabs_itself::rename_current_tab);
    connect(bar, &task_tabs_itself::tab_was_renamed, this, &task_tabs::tab_was_renamed);
    connect(bar, &task_tabs_itself::another_tab_clicked, this, &task_tabs::another_tab_clicked);
    connect(bar, &QTabBar::currentChanged, this, &task_tabs::another_tab_clicked_finally);
}

task_tabs::~task_tabs() = default;

QWidget* task_tabs::widget_ptr() { return this; }

task_tabs_itself* task_tabs::bar() const { return pimpl->bar; }

void task_tabs::restore_all_states_correspond_to_last_active_tab() {
    pimpl->load_the_task_of(pimpl->bar->tabText(pimpl->bar->currentIndex()));
}

void task_tabs::save_all_states_correspond_to_last_active_tab() {
    QStringList names;
    for (int index = 0; index < pimpl->bar->count(); ++index)
        names << pimpl->bar->tabText(index);
    QSettings settings;
    settings.setValue(settings_key::tabs, names);
    settings.setValue(settings_key::active_tab, pimpl->bar->tabText(pimpl->bar->currentIndex()));
    pimpl->save_the_shown_task_as(pimpl->shown_tab);
}

void task_tabs::add_new_tab() {
    QString name;
    do
        name = tr(text::task_prefix) + QString::number(++pimpl->counter);
    while (pimpl->bar->this_is_not_unique(name));
    pimpl->bar->addTab(name);
    pimpl->follow_the_number_of_tabs();
}

void task_tabs::delete_tab(int index) {
    task_tabs_itself* const bar = pimpl->bar;
    if (index < 0 || index >= bar->count() || bar->count() < 2)
        return;
    QString const name = bar->tabText(index);
    if (name == pimpl->shown_tab) {
        // Its task goes with it: nothing to save when the neighbour comes, and the paths it shows,
        // saved or added since, are revised in full by whichever task takes them next.
        kernel().forget_change_records_of(pimpl->shown_paths());
        pimpl->shown_tab.clear();
    }
    bar->removeTab(index);
    last_info_for_tab const info(name);
    kernel().forget_change_records_of(paths_in(info.raw_paths_to_revising_files()));
    info.remove();
    pimpl->follow_the_number_of_tabs();
}

void task_tabs::delete_current_tab() { delete_tab(pimpl->bar->currentIndex()); }

void task_tabs::tab_was_renamed(QString const& old_name) {
    QString const new_name = pimpl->bar->tabText(pimpl->bar->currentIndex());
    if (pimpl->shown_tab == old_name)
        pimpl->shown_tab = new_name;
    last_info_for_tab const old_info(old_name);
    if (!old_info.was_saved())
        return;
    QStringList const paths = paths_in(old_info.raw_paths_to_revising_files());
    last_info_for_tab(new_name).save(old_info.programming_language(), old_info.formatting_style(),
                                     old_info.language_structure(), old_info.filename_extensions(), paths);
    old_info.remove();
}

// A left-button press on the bar, before the bar handles it: the task still shown is saved under
// its own tab's name, whether or not the press goes on to switch tabs.
void task_tabs::another_tab_clicked() {
    if (!pimpl->shown_tab.isEmpty())
        pimpl->save_the_shown_task_as(pimpl->shown_tab);
}

// The bar's current tab changed: the task of the tab entered is loaded. A switch by the mouse was
// saved by the press; one by the keyboard is saved here, still under the name of the tab left.
void task_tabs::another_tab_clicked_finally() {
    QString const entered = pimpl->bar->tabText(pimpl->bar->currentIndex());
    if (entered == pimpl->shown_tab)
        return;
    if (!pimpl->shown_tab.isEmpty() && !pimpl->bar->a_press_is_being_handled())
        pimpl->save_the_shown_task_as(pimpl->shown_tab);
    pimpl->load_the_task_of(entered);
}

}  // namespace GUI
