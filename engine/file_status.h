// One `stat` of a file (following symbolic links) and what a revision run asks of it: whether it
// is a regular file the user may read and write, how many names it has, and its stamp: the
// modification time to the nanosecond, the size and the inode, which the change records keep and
// compare for equality. A run takes one by path for the accessibility test and the records, and
// one from the descriptor it read the text through, which is what a record of that text holds.
#ifndef STYLE_TARNEL_ENGINE_FILE_STATUS_H
#define STYLE_TARNEL_ENGINE_FILE_STATUS_H

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

class file_status {
public:
    explicit file_status(QString const& path);
    // What `fstat` said of a descriptor opened on `native_path`.
    file_status(QByteArray const& native_path, struct stat const& status);
    file_status() = default;

    bool exists() const { return found; }
    // An existing regular file that the user may both read and write (asked of the system in one
    // `access` call, so that permissions, access lists and read-only mounts all count).
    bool is_readable_and_writable_file() const;
    // An existing regular file that the user may read: enough for a run that writes nothing.
    bool is_readable_file() const;
    // More than one name for the same file (hard links).
    bool has_several_names() const { return found && status.st_nlink > 1; }
    // Seconds since the epoch (UTC); 0 for a missing file.
    quint32 modification_time() const;
    // "<seconds>.<nanoseconds> <size> <inode>" of the modification time; empty for a missing file.
    // Two stamps are equal only when nobody wrote the file between the two looks (within the file
    // system's clock tick, for a write that keeps the size).
    QString stamp() const;

    // Same existence, inode, size and modification time (to the nanosecond): what tells that nobody
    // wrote or replaced the file between two looks at it.
    bool operator==(file_status const& other) const;
    // The same file (device and inode), whatever was written to it.
    bool same_file_as(file_status const& other) const;
    bool operator!=(file_status const& other) const { return !(*this == other); }

private:
    QByteArray native_path;
    struct stat status {};
    bool found = false;
};

#endif
