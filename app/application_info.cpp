#include "app/application_info.h"

#include "core/product.h"

#include <QCoreApplication>

void set_application_info() {
    QCoreApplication::setOrganizationName(product::organisation_name);
    QCoreApplication::setOrganizationDomain(product::organisation_domain);
    QCoreApplication::setApplicationName(product::title);
    QCoreApplication::setApplicationVersion(product::version);
}
