// One `stat` of a file (following symbolic links) and what a revision run asks of it: whether it
// is a regular file the user may read and write, its size and its modification time. A run takes
// one per source and uses it for the accessibility test, the change records and the check for
// edits made while the plugin worked, so that an unchanged source costs one `stat` and one
// `access`.
#ifndef STYLE_TARNEL_ENGINE_FILE_STATUS_H
#define STYLE_TARNEL_ENGINE_FILE_STATUS_H

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

class file_status {
public:
    explicit file_status(QString const& path);

    bool exists() const { return found; }
    // An existing regular file that the user may both read and write (asked of the system in one
    // `access` call, so that permissions, access lists and read-only mounts all count).
    bool is_readable_and_writable_file() const;
    // An existing regular file that the user may read: enough for a run that writes nothing.
    bool is_readable_file() const;
    // Seconds since the epoch (UTC), as the change records hold them; 0 for a missing file.
    quint32 modification_time() const;

    // Same existence, size and modification time (to the nanosecond): what tells that nobody
    // wrote the file between two looks at it.
    bool operator==(file_status const& other) const;
    bool operator!=(file_status const& other) const { return !(*this == other); }

private:
    QByteArray native_path;
    struct stat status {};
    bool found = false;
};

#endif
