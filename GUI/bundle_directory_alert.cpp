#include "GUI/bundle_directory_alert.h"

#include "GUI/messages.h"
#include "core/product.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QWidget>

namespace GUI {

bool this_directory_is_usable(QString const& path) {
    QFileInfo const directory(path);
    return directory.exists() && directory.isDir() && directory.isReadable() && directory.isWritable();
}

void show_report_about_problems_with(QString const& directory, char const* message,
                                     QWidget* main_window) {
    auto* box = new QMessageBox(QMessageBox::Critical, product::title, QObject::tr(message),
                                QMessageBox::Close, main_window);
    box->setInformativeText(QObject::tr(text::please_make_sure_this_directory) + directory +
                            QObject::tr(text::exists_and_you_can_write_in_it));
    box->setObjectName("critical_alert");
    box->setAccessibleName(QObject::tr(message));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

}  // namespace GUI
