#include "GUI/bundle_directory_alert.h"

#include "GUI/critical_alert.h"
#include "GUI/messages.h"

#include <QFileInfo>
#include <QObject>

namespace GUI {

bool this_directory_is_usable(QString const& path) {
    QFileInfo const directory(path);
    return directory.exists() && directory.isDir() && directory.isReadable() && directory.isWritable();
}

void show_report_about_problems_with(QString const& directory, char const* message,
                                     QWidget* main_window) {
    show_critical_alert(QObject::tr(message), QObject::tr(text::please_make_sure_this_directory) + directory +
                                                  QObject::tr(text::exists_and_you_can_write_in_it),
                        main_window);
}

}  // namespace GUI
