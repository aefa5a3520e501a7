// The critical alert of the window: a window-modal box over the main window with what went wrong
// and what to check, which the user closes.
#ifndef STYLE_TARNEL_GUI_CRITICAL_ALERT_H
#define STYLE_TARNEL_GUI_CRITICAL_ALERT_H

#include <QString>

class QWidget;

namespace GUI {

// Opens the box on the window of `over` and returns at once; closing it has no further effect.
void show_critical_alert(QString const& message, QString const& what_to_check, QWidget* over);

}  // namespace GUI

#endif
