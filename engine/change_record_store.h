// The settings file that holds the change records, apart from the window's own settings. A run
// keeps one open for all its files and syncs it when it ends and every few seconds in between,
// so that a run's cost grows with the number of files, not with its square.
#ifndef STYLE_TARNEL_ENGINE_CHANGE_RECORD_STORE_H
#define STYLE_TARNEL_ENGINE_CHANGE_RECORD_STORE_H

#include <QElapsedTimer>

#include <memory>

class QSettings;

class change_record_store {
public:
    change_record_store();
    ~change_record_store();  // Syncs.
    change_record_store(change_record_store const&) = delete;
    change_record_store& operator=(change_record_store const&) = delete;

    QSettings* settings() const { return store.get(); }
    // Syncs when the last sync is a few seconds old.
    void sync_if_due();
    void sync();

private:
    std::unique_ptr<QSettings> store;
    QElapsedTimer since_sync;
};

#endif
