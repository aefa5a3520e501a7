#include "engine/read_from.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class file_descriptor {
public:
    explicit file_descriptor(int fd) : fd(fd) {}
    ~file_descriptor() {
        if (fd >= 0)
            ::close(fd);
    }
    file_descriptor(file_descriptor const&) = delete;
    file_descriptor& operator=(file_descriptor const&) = delete;
    int get() const { return fd; }

private:
    int fd;
};

}  // namespace

bool read_from::to(std::string& out) const {
    file_descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.get() < 0)
        return false;
    struct stat status {};
    if (::fstat(file.get(), &status) != 0 || S_ISDIR(status.st_mode))
        return false;

    // One read of the size the file has now; the loop only matters when the file grows or
    // shrinks while it is read, or for files whose size the system does not know.
    std::string text;
    text.resize(status.st_size > 0 ? static_cast<std::size_t>(status.st_size) : 0);
    std::size_t filled = 0;
    for (;;) {
        if (filled == text.size())
            text.resize(text.size() + 65536);
        ssize_t got = ::read(file.get(), &text[filled], text.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    text.resize(filled);
    out.swap(text);
    return true;
}
