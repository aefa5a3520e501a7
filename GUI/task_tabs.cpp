#include "GUI/task_tabs.h"

#include "GUI/menu_actions.h"

#include <QAction>

namespace GUI {

task_tabs::task_tabs(QWidget* parent, tab_menu_new* add, tab_menu_close* close, tab_menu_rename* rename)
    : QTabBar(parent) {
    setObjectName("task_tabs");
    setAccessibleName(tr("Tasks"));
    addTab(tr("Task 1"));
    connect(add->widget_ptr(), &QAction::triggered, this, &task_tabs::add_new_tab);
    connect(close->widget_ptr(), &QAction::triggered, this, &task_tabs::delete_current_tab);
    connect(rename->widget_ptr(), &QAction::triggered, this, &task_tabs::rename_current_tab);
}

void task_tabs::restore_all_states_correspond_to_last_active_tab() { emit set_first_programming_language(); }

}  // namespace GUI
