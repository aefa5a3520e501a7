#include "engine/change_record_store.h"

#include "core/product.h"
#include "core/settings_keys.h"

#include <QSettings>

namespace {

constexpr qint64 sync_interval_ms = 3000;

}  // namespace

change_record_store::change_record_store()
    : store(std::make_unique<QSettings>(product::organisation_name,
                                        settings_key::change_records_store)) {
    since_sync.start();
}

change_record_store::~change_record_store() { sync(); }

void change_record_store::sync_if_due() {
    if (since_sync.elapsed() >= sync_interval_ms)
        sync();
}

void change_record_store::sync() {
    store->sync();
    since_sync.restart();
}
