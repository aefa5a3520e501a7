// The settings file that holds the change records, apart from the window's own settings. A run
// keeps one open for all its files and syncs it when it ends and every few seconds in between,
// so that a run's cost grows with the number of files, not with its square.
#ifndef STYLE_TARNEL_ENGINE_CHANGE_RECORD_STORE_H
#define STYLE_TARNEL_ENGINE_CHANGE_RECORD_STORE_H

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QSettings;

// Which settings store holds the records: that of `organisation` named `name`.
struct records_location {
    QString organisation;
    QString name;
};

class change_record_store {
public:
    explicit change_record_store(records_location const& location);
    ~change_record_store();  // Syncs.
    change_record_store(change_record_store const&) = delete;
    change_record_store& operator=(change_record_store const&) = delete;

    QSettings& settings() const { return *store; }
    // Syncs when the last sync is a few seconds old.
    void sync_if_due();
    void sync();

private:
    std::unique_ptr<QSettings> store;
    QElapsedTimer since_sync;
};

#endif
