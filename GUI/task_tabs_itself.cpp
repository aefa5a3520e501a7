#include "GUI/task_tabs_itself.h"

#include "GUI/messages.h"
#include "core/style_addon.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace GUI {

// A frameless window of its own, placed over the tab while a name is typed; the bar owns it.
tab_renamer::tab_renamer(QWidget* parent) : QLineEdit(parent) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setObjectName("tab_renamer");
    setAccessibleName(QObject::tr("New name of the task"));
    hide();
}

void tab_renamer::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        put_away();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

// Hidden, with the keyboard back to the window of the bar.
void tab_renamer::put_away() {
    hide();
    if (parentWidget() != nullptr)
        parentWidget()->activateWindow();
}

void tab_renamer::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    hide();
}

task_tabs_itself::task_tabs_itself(QWidget* parent) : QTabBar(parent), the_renamer(new tab_renamer(this)) {
    setObjectName("task_tabs");
    setAccessibleName(tr("Tasks"));
    setTabsClosable(true);
    setMovable(true);
    setDrawBase(false);
    setUsesScrollButtons(true);
    connect(the_renamer, &QLineEdit::textEdited, this, &task_tabs_itself::check_renaming);
    connect(the_renamer, &QLineEdit::returnPressed, this, &task_tabs_itself::renaming_finished_by_ENTER);
}

bool task_tabs_itself::this_is_unique(QString const& name) const {
    for (int index = 0; index < count(); ++index)
        if (tabText(index) == name)
            return false;
    return true;
}

void task_tabs_itself::rename_current_tab() {
    if (currentIndex() < 0)
        return;
    QRect const tab = tabRect(currentIndex());
    the_renamer->setText(tabText(currentIndex()));
    the_renamer->setMinimumSize(tab.size());
    the_renamer->resize(tab.size());
    the_renamer->move(mapToGlobal(tab.topLeft()));
    the_renamer->show();
    the_renamer->raise();
    the_renamer->activateWindow();
    the_renamer->setFocus();
    the_renamer->selectAll();
}

void task_tabs_itself::check_renaming(QString const& text) {
    if (text.isEmpty() || this_is_a_style_name(text.toStdString()))
        return;
    the_renamer->backspace();
    QToolTip::showText(the_renamer->mapToGlobal(QPoint(0, the_renamer->height())), tr(text::in_English_please),
                       the_renamer);
}

void task_tabs_itself::renaming_finished_by_ENTER() {
    QString const new_name = the_renamer->text().trimmed();
    QString const old_name = tabText(currentIndex());
    QPoint const below = the_renamer->mapToGlobal(QPoint(0, the_renamer->height()));
    if (new_name == old_name) {
        the_renamer->put_away();
        return;
    }
    if (new_name.isEmpty()) {
        QToolTip::showText(below, tr(text::name_cannot_be_empty), the_renamer);
        return;
    }
    if (this_is_not_unique(new_name)) {
        QToolTip::showText(below, tr(text::tab_already_exists), the_renamer);
        return;
    }
    setTabText(currentIndex(), new_name);
    the_renamer->put_away();
    emit tab_was_renamed(old_name);
}

void task_tabs_itself::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QTabBar::mousePressEvent(event);
        return;
    }
    emit another_tab_clicked();
    handling_a_press = true;
    QTabBar::mousePressEvent(event);
    handling_a_press = false;
}

void task_tabs_itself::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        rename_current_tab();
    QTabBar::mouseDoubleClickEvent(event);
}

void task_tabs_itself::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace GUI
