#include "GUI/critical_alert.h"

#include "core/product.h"

#include <QMessageBox>
#include <QWidget>

namespace GUI {

void show_critical_alert(QString const& message, QString const& what_to_check, QWidget* over) {
    auto* box = new QMessageBox(QMessageBox::Critical, product::title, message, QMessageBox::Close,
                                over != nullptr ? over->window() : nullptr);
    box->setInformativeText(what_to_check);
    box->setObjectName("critical_alert");
    box->setAccessibleName(message);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

}  // namespace GUI
