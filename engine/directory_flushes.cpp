#include "engine/directory_flushes.h"

#include <fcntl.h>
#include <unistd.h>

void flush_directory(std::string const& directory) {
    int const descriptor = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

void directory_flushes::owed_by(std::string const& directory) {
    std::lock_guard<std::mutex> const lock(guard);
    owed.insert(directory);
}

void directory_flushes::make_them() {
    std::set<std::string> now;
    {
        std::lock_guard<std::mutex> const lock(guard);
        now.swap(owed);
    }
    for (std::string const& directory : now)
        flush_directory(directory);
}
