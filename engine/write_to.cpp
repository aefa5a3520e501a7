#include "engine/write_to.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The file that is really written: the final target of a symbolic link, or the path itself when
// the file does not exist yet.
std::string resolved(std::string const& path) {
    char buffer[PATH_MAX];
    if (::realpath(path.c_str(), buffer) != nullptr)
        return buffer;
    return path;
}

std::string directory_of(std::string const& path) {
    auto slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string name_of(std::string const& path) {
    auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool write_all(int fd, std::string const& text) {
    std::size_t written = 0;
    while (written < text.size()) {
        ssize_t done = ::write(fd, text.data() + written, text.size() - written);
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0)
            return false;
        written += static_cast<std::size_t>(done);
    }
    return true;
}

// Makes the rename itself durable. A directory that cannot be opened or synced (some file systems
// refuse) changes nothing for the file, which is complete either way.
void synced_directory_of(std::string const& path) {
    int const directory = ::open(directory_of(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (directory < 0)
        return;
    ::fsync(directory);
    ::close(directory);
}

// Holds back the signals that end a process by default while it lives, so that no signal can
// leave the temporary file behind between its creation and its rename; a pending one is
// delivered as soon as the file is gone. SIGKILL cannot be held back.
class signals_held_back {
public:
    signals_held_back() {
        sigset_t held;
        sigemptyset(&held);
        for (int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT})
            sigaddset(&held, number);
        pthread_sigmask(SIG_BLOCK, &held, &previous);
    }
    ~signals_held_back() { pthread_sigmask(SIG_SETMASK, &previous, nullptr); }
    signals_held_back(signals_held_back const&) = delete;
    signals_held_back& operator=(signals_held_back const&) = delete;

private:
    sigset_t previous;
};

}  // namespace

bool write_to::from(std::string const& text) const {
    std::string const target = resolved(path);
    struct stat original {};
    bool const exists = ::stat(target.c_str(), &original) == 0;
    if (exists && (!S_ISREG(original.st_mode) || ::access(target.c_str(), W_OK) != 0))
        return false;

    signals_held_back const held;
    std::string temporary = directory_of(target) + "/." + name_of(target) + ".tarnel-XXXXXX";
    int fd = ::mkostemp(&temporary[0], O_CLOEXEC);
    if (fd < 0)
        return false;

    bool ok = write_all(fd, text);
    if (ok && exists) {
        ok = ::fchmod(fd, original.st_mode & 07777) == 0;
        // Only root may give a file away; for anybody else the owner is already right, or the
        // rename would hand another user's file to us, which is refused.
        if (ok && (original.st_uid != ::geteuid() || original.st_gid != ::getegid()))
            ok = ::fchown(fd, original.st_uid, original.st_gid) == 0;
    } else if (ok) {
        mode_t mask = ::umask(0);
        ::umask(mask);
        ok = ::fchmod(fd, 0666 & ~mask) == 0;
    }
    // The bytes reach the disk before the name does: a rename that a power loss lets through
    // ahead of the data would leave an empty file where the old one was.
    ok = ok && ::fsync(fd) == 0;
    ok = (::close(fd) == 0) && ok;
    if (ok)
        ok = ::rename(temporary.c_str(), target.c_str()) == 0;
    if (!ok) {
        ::unlink(temporary.c_str());
        return false;
    }
    synced_directory_of(target);
    return true;
}
