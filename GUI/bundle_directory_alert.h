// Whether one of the bundle's directories can take new files, and the critical alert shown over
// the main window when it cannot.
#ifndef STYLE_TARNEL_GUI_BUNDLE_DIRECTORY_ALERT_H
#define STYLE_TARNEL_GUI_BUNDLE_DIRECTORY_ALERT_H

#include <QString>

class QWidget;

namespace GUI {

// The directory exists, is a directory, and can be read and written.
bool this_directory_is_usable(QString const& path);

// A window-modal critical box on `main_window`: `message`, then "Please make sure this
// directory", the path and "exists and you can write in it."; closing it has no further effect.
void show_report_about_problems_with(QString const& directory, char const* message,
                                     QWidget* main_window);

}  // namespace GUI

#endif
