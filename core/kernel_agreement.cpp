// kernel: remembering that the first-start agreement was accepted.
#include "core/kernel.h"

#include "core/settings_keys.h"

#include <QSettings>

void kernel::remember_that_EULA_was_accepted() const {
    QSettings settings;
    settings.setValue(settings_key::EULA_was_accepted, true);
    settings.sync();
}

bool kernel::this_is_first_start_of_app() const {
    return QSettings().value(settings_key::EULA_was_accepted, QVariant()) == QVariant();
}
