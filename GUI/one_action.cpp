#include "GUI/one_action.h"

#include <QAction>

namespace GUI {

class one_action::implementation {
public:
    implementation(one_action* owner, action_look const& look) : action(new QAction(look.text, owner)) {
        action->setShortcut(look.shortcut);
        action->setEnabled(look.enabled);
        action->setCheckable(look.checkable);
        // What a screen reader announces beside the entry's own text.
        QString const tip = look.tip.isEmpty() ? QString(look.text).remove('&') : look.tip;
        action->setStatusTip(tip);
    }

    QAction* action;
};

one_action::one_action(QWidget* parent, action_look const& look)
    : QWidget(parent), pimpl(std::make_unique<implementation>(this, look)) {
    // The object only carries its action; it never shows on screen itself.
    setVisible(false);
}

one_action::~one_action() = default;

QAction* one_action::widget_ptr() const { return pimpl->action; }
void one_action::enable() { pimpl->action->setEnabled(true); }
void one_action::disable() { pimpl->action->setEnabled(false); }
void one_action::name_as(char const* name) { pimpl->action->setObjectName(name); }

}  // namespace GUI
