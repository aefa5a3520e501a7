#include "engine/change_record_store.h"

#include <QSettings>

namespace {

constexpr qint64 sync_interval_ms = 3000;

}  // namespace

change_record_store::change_record_store(records_location const& location)
    : store(std::make_unique<QSettings>(location.organisation, location.name)) {
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
