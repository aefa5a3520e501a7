// A menu entry as the window's groups see it: one QAction with its text, shortcut and initial
// state, which the group that uses it connects, enables and disables.
#ifndef STYLE_TARNEL_GUI_ONE_ACTION_H
#define STYLE_TARNEL_GUI_ONE_ACTION_H

#include <QKeySequence>
#include <QWidget>

#include <memory>

class QAction;

namespace GUI {

struct action_look {
    QString text;
    QKeySequence shortcut = QKeySequence();
    bool enabled = true;
    bool checkable = false;
    // What the status bar and a screen reader say of the entry; empty: its text.
    QString tip = QString();
};

class one_action : public QWidget {
    Q_OBJECT
public:
    one_action(QWidget* parent, action_look const& look);
    ~one_action() override;

    QAction* widget_ptr() const;
    void enable();
    void disable();

protected:
    // Names the action for tests and for the accessibility tree, after the class that owns it.
    void name_as(char const* name);

private:
    class implementation;
    std::unique_ptr<implementation> pimpl;
};

}  // namespace GUI

#endif
