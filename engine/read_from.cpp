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
    file_status ignored;
    return to(out, ignored);
}

bool read_from::to(std::string& out, file_status& as_read) const {
    file_descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.get() < 0)
        return false;
    struct stat status {};
    if (::fstat(file.get(), &status) != 0 || S_ISDIR(status.st_mode))
        return false;

    // One read of the size the file has now, then a small read that finds the end. Only a file
    // that grew meanwhile (or whose size the system does not know) makes the text grow.
    std::string text(status.st_size > 0 ? static_cast<std::size_t>(status.st_size) : 0, '\0');
    std::size_t filled = 0;
    char probe[4096];
    for (;;) {
        bool const probing = filled == text.size();
        char* const into = probing ? probe : &text[filled];
        std::size_t const room = probing ? sizeof probe : text.size() - filled;
        ssize_t got = ::read(file.get(), into, room);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        if (got == 0)
            break;
        if (probing) {
            text.append(probe, static_cast<std::size_t>(got));
            filled = text.size();
        } else {
            filled += static_cast<std::size_t>(got);
        }
    }
    text.resize(filled);
    out.swap(text);
    as_read = file_status(QByteArray::fromStdString(path), status);
    return true;
}
