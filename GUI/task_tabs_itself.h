// The bar of task tabs and its in-place renamer: a press on the bar first asks for the shown task
// to be saved, the wheel does not switch tabs, a double click or "Rename" opens the renamer (a
// frameless window of its own) over the tab, which takes only names a style could have and none
// that another tab has.
#ifndef STYLE_TARNEL_GUI_TASK_TABS_ITSELF_H
#define STYLE_TARNEL_GUI_TASK_TABS_ITSELF_H

#include <QLineEdit>
#include <QTabBar>

namespace GUI {

class tab_renamer : public QLineEdit {
    Q_OBJECT
public:
    explicit tab_renamer(QWidget* parent);
    void put_away();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

class task_tabs_itself : public QTabBar {
    Q_OBJECT
public:
    explicit task_tabs_itself(QWidget* parent);

    bool this_is_unique(QString const& name) const;
    bool this_is_not_unique(QString const& name) const { return !this_is_unique(name); }
    tab_renamer* renamer() const { return the_renamer; }
    // True while the bar handles a left-button press, after another_tab_clicked() was emitted for
    // it: a change of the current tab then comes from that press.
    bool a_press_is_being_handled() const { return handling_a_press; }

signals:
    void another_tab_clicked();
    void tab_was_renamed(QString const& old_name);

public slots:
    void rename_current_tab();
    void check_renaming(QString const& text);
    void renaming_finished_by_ENTER();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    tab_renamer* the_renamer;
    bool handling_a_press = false;
};

}  // namespace GUI

#endif
