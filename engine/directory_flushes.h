// The directories whose renames a run has yet to make durable. A replaced file is whole either
// way (its bytes reach the disk before its new name does); what the flush of its directory adds is
// that the rename survives a power cut. Flushed once per directory when the run is about to report,
// instead of after every rename.
#ifndef STYLE_TARNEL_ENGINE_DIRECTORY_FLUSHES_H
#define STYLE_TARNEL_ENGINE_DIRECTORY_FLUSHES_H

#include <mutex>
#include <set>
#include <string>

class directory_flushes {
public:
    directory_flushes() = default;
    directory_flushes(directory_flushes const&) = delete;
    directory_flushes& operator=(directory_flushes const&) = delete;
    // Whatever is still owed is flushed on the way out.
    ~directory_flushes() { make_them(); }

    // Notes that a rename in `directory` is owed a flush. Safe on several threads at once.
    void owed_by(std::string const& directory);
    // Flushes each directory noted since the last call, once. A directory that cannot be opened
    // or flushed (some file systems refuse) is passed over, as after a single rename.
    void make_them();

private:
    std::mutex guard;
    std::set<std::string> owed;
};

// Flushes one directory now, so that the renames made in it are durable.
void flush_directory(std::string const& directory);

#endif
