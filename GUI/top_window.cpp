#include "GUI/top_window.h"

#include <QWidget>

namespace GUI {

void show_main_window_as_top_window(QWidget* widget) {
    if (widget == nullptr)
        return;
    QWidget* window = widget->window();
    window->raise();
    window->activateWindow();
}

}  // namespace GUI
