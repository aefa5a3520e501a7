// Bringing the main window back to the front after a dialog over it closes.
#ifndef STYLE_TARNEL_GUI_TOP_WINDOW_H
#define STYLE_TARNEL_GUI_TOP_WINDOW_H

class QWidget;

namespace GUI {

// The window that holds `widget` is raised and activated, so that it takes the keyboard again.
void show_main_window_as_top_window(QWidget* widget);

}  // namespace GUI

#endif
