#include "engine/write_to.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

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


// The bytes of the file under `name`, when it is still the file `as_read` describes (same device
// and inode) and holds exactly `read`.
bool still_holds(std::string const& name, std::string const& read, file_status const& as_read) {
    int const fd = ::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0)
        return false;
    struct stat now {};
    bool same = ::fstat(fd, &now) == 0 && S_ISREG(now.st_mode) &&
                file_status(QByteArray(), now).same_file_as(as_read) &&
                now.st_size == static_cast<off_t>(read.size());
    std::string bytes(read.size(), '\0');
    std::size_t filled = 0;
    while (same && filled < bytes.size()) {
        ssize_t const got = ::read(fd, &bytes[filled], bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            same = false;
        else
            filled += static_cast<std::size_t>(got);
    }
    char probe;
    same = same && bytes == read && ::read(fd, &probe, 1) == 0;
    ::close(fd);
    return same;
}

// Gives the new file the old one's extended attributes (user attributes, access lists, security
// labels). Best effort: an attribute the file system or the user's rights refuse is left out, as
// a copy by the user would.
void copy_extended_attributes(std::string const& from, int to) {
    ssize_t const size = ::listxattr(from.c_str(), nullptr, 0);
    if (size <= 0)
        return;
    std::vector<char> names(static_cast<std::size_t>(size));
    ssize_t const listed = ::listxattr(from.c_str(), names.data(), names.size());
    for (ssize_t at = 0; at < listed; at += static_cast<ssize_t>(std::strlen(&names[at])) + 1) {
        char const* name = &names[at];
        ssize_t const length = ::getxattr(from.c_str(), name, nullptr, 0);
        if (length < 0)
            continue;
        std::vector<char> value(static_cast<std::size_t>(length) + 1);
        ssize_t const got = ::getxattr(from.c_str(), name, value.data(), value.size());
        if (got >= 0)
            ::fsetxattr(to, name, value.data(), static_cast<std::size_t>(got), 0);
    }
}

// For the tests: with STYLE_TARNEL_PAUSE_BEFORE_REPLACING naming a FIFO, every replacement of a
// revised file waits, just before the file is replaced, until a writer has opened that FIFO and
// closed it again. A test can so change the file at the worst moment, for certain. Unset (or not
// a FIFO): nothing.
void pause_for_a_test() {
    static char const* const fifo = std::getenv("STYLE_TARNEL_PAUSE_BEFORE_REPLACING");
    if (fifo == nullptr)
        return;
    struct stat status {};
    if (::stat(fifo, &status) != 0 || !S_ISFIFO(status.st_mode))
        return;
    int const fd = ::open(fifo, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return;
    char buffer[64];
    while (::read(fd, buffer, sizeof buffer) > 0 || errno == EINTR) {
    }
    ::close(fd);
}

// The new bytes in a temporary file beside `target`, with the old file's permissions, owner and
// extended attributes, flushed to the disk; its name in `temporary`, its status in `written`.
bool prepared_beside(std::string const& target, struct stat const* original, std::string const& text,
                     std::string& temporary, struct stat& written) {
    temporary = directory_of(target) + "/." + name_of(target) + ".tarnel-XXXXXX";
    int fd = ::mkostemp(&temporary[0], O_CLOEXEC);
    if (fd < 0)
        return false;
    bool ok = write_all(fd, text);
    if (ok && original != nullptr) {
        // Only root may give a file away; for anybody else the owner is already right, or the
        // rename would hand another user's file to us, which is refused. The owner first: a
        // change of owner may clear the set-user-ID bits that the mode then sets again.
        if (original->st_uid != ::geteuid() || original->st_gid != ::getegid())
            ok = ::fchown(fd, original->st_uid, original->st_gid) == 0;
        if (ok)
            copy_extended_attributes(target, fd);
        ok = ok && ::fchmod(fd, original->st_mode & 07777) == 0;
    } else if (ok) {
        mode_t mask = ::umask(0);
        ::umask(mask);
        ok = ::fchmod(fd, 0666 & ~mask) == 0;
    }
    // The bytes reach the disk before the name does: a rename that a power loss lets through
    // ahead of the data would leave an empty file where the old one was.
    ok = ok && ::fsync(fd) == 0 && ::fstat(fd, &written) == 0;
    ok = (::close(fd) == 0) && ok;
    if (!ok)
        ::unlink(temporary.c_str());
    return ok;
}

}  // namespace

// A directory that cannot be opened or synced (some file systems refuse) changes nothing for the
// file, which is complete either way.
void write_to::flush_the_directory_of(std::string const& target) const {
    if (later != nullptr)
        later->owed_by(directory_of(target));
    else
        flush_directory(directory_of(target));
}

bool write_to::from(std::string const& text) const {
    std::string const target = resolved(path);
    struct stat original {};
    bool const exists = ::stat(target.c_str(), &original) == 0;
    if (exists && (!S_ISREG(original.st_mode) || ::access(target.c_str(), W_OK) != 0))
        return false;

    signals_held_back const held;
    std::string temporary;
    struct stat written {};
    if (!prepared_beside(target, exists ? &original : nullptr, text, temporary, written))
        return false;
    if (::rename(temporary.c_str(), target.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    flush_the_directory_of(target);
    return true;
}

replacement write_to::from(std::string const& text, std::string const& read, file_status const& as_read,
                           file_status& written) const {
    std::string const target = resolved(path);
    struct stat original {};
    if (::stat(target.c_str(), &original) != 0 || !S_ISREG(original.st_mode) ||
        ::access(target.c_str(), W_OK) != 0 || original.st_nlink > 1)
        return replacement::failed;

    signals_held_back const held;
    std::string temporary;
    struct stat new_status {};
    if (!prepared_beside(target, &original, text, temporary, new_status))
        return replacement::failed;
    file_status const ours(QByteArray::fromStdString(target), new_status);
    pause_for_a_test();

    if (::renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE) != 0) {
        if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP) {
            ::unlink(temporary.c_str());
            return replacement::failed;
        }
        // No exchange on this file system: the check, then the rename, as close together as can be.
        if (!still_holds(target, read, as_read)) {
            ::unlink(temporary.c_str());
            return replacement::edited_meanwhile;
        }
        if (::rename(temporary.c_str(), target.c_str()) != 0) {
            ::unlink(temporary.c_str());
            return replacement::failed;
        }
        flush_the_directory_of(target);
        written = ours;
        return replacement::done;
    }
    // The old file is now under the temporary name.
    if (still_holds(temporary, read, as_read)) {
        ::unlink(temporary.c_str());
        flush_the_directory_of(target);
        written = ours;
        return replacement::done;
    }
    // Saved meanwhile: the user's version goes back. Should another save have replaced our file
    // since the exchange, the exchange back brought that newer version here; it goes back again,
    // and the older one, which it supersedes, goes.
    ::renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE);
    struct stat now_here {};
    if (::stat(temporary.c_str(), &now_here) == 0 && !file_status(QByteArray(), now_here).same_file_as(ours))
        ::renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE);
    ::unlink(temporary.c_str());
    flush_the_directory_of(target);
    return replacement::edited_meanwhile;
}
