#include "engine/file_collection.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegExp>

#include <algorithm>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

void split_by_string(std::vector<std::string>& parts, std::string const& text,
                     std::string const& separator) {
    if (text.empty())
        return;
    if (separator.empty()) {
        parts.push_back(text);
        return;
    }
    std::string::size_type from = 0;
    for (auto at = text.find(separator); at != std::string::npos; at = text.find(separator, from)) {
        parts.push_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    parts.push_back(text.substr(from));
}

QStringList obtain_full_file_paths_from::with(QString const& extensions) const {
    QStringList name_filters;
    for (auto const& extension : extensions.split(' ', Qt::SkipEmptyParts)) {
        QString const filter = "*." + extension;
        if (!name_filters.contains(filter))
            name_filters << filter;
    }
    QStringList files;
    for (auto const& path : paths)
        files << paths_from_this(path, name_filters);
    return files;
}

namespace {

// Whether a directory's entry named `name` (bytes) matches one of the filters, as a directory
// listing matches them: wildcards, letters of either case.
bool matches_one_of(QList<QRegExp> const& filters, QString const& name) {
    return std::any_of(filters.begin(), filters.end(), [&](QRegExp const& filter) { return filter.exactMatch(name); });
}

// Walks a directory from the descriptor of each level, not from its path: so a path longer than
// the system takes (4,096 bytes) is walked as any other. Regular files whose names match are
// added in the order of the listing, below their directory as soon as it is met; symbolic links,
// hidden files and hidden directories are left out. A name that is not UTF-8 keeps its bytes in
// the path as far as the path's text can hold them: such a file is found and counted, and the
// run reports the file it cannot open by that path, instead of leaving it out unseen.
void add_files_below(int directory, QByteArray const& path, QList<QRegExp> const& filters, QStringList& files) {
    DIR* const listing = ::fdopendir(directory);
    if (listing == nullptr) {
        ::close(directory);
        return;
    }
    while (dirent const* entry = ::readdir(listing)) {
        QByteArray const name(entry->d_name);
        if (name.startsWith('.'))
            continue;
        struct stat status {};
        if (::fstatat(::dirfd(listing), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        QByteArray const full = path + '/' + name;
        if (S_ISDIR(status.st_mode)) {
            int const below = ::openat(::dirfd(listing), entry->d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
            if (below >= 0)
                add_files_below(below, full, filters, files);
        } else if (S_ISREG(status.st_mode) && matches_one_of(filters, QFile::decodeName(name))) {
            files << QFile::decodeName(full);
        }
    }
    ::closedir(listing);
}

}  // namespace

QStringList obtain_full_file_paths_from::paths_from_this(QString const& path,
                                                         QStringList const& name_filters) const {
    QStringList files;
    QFileInfo const info(path);
    if (info.isDir()) {
        QList<QRegExp> filters;
        for (QString const& filter : name_filters)
            filters << QRegExp(filter, Qt::CaseInsensitive, QRegExp::Wildcard);
        QByteArray const directory = QFile::encodeName(QDir::cleanPath(info.absoluteFilePath()));
        int const descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor >= 0)
            add_files_below(descriptor, directory == "/" ? QByteArray() : directory, filters, files);
    } else if (info.isFile()) {
        files << path;
    }
    return files;
}

bool there_are_some::with_extensions_that_not_corresponds_to(std::string const& extensions) const {
    std::vector<std::string> allowed;
    split_by_string(allowed, extensions, " ");
    for (auto const& path : paths) {
        QFileInfo const info(path);
        if (!info.isFile())
            continue;
        std::string const suffix = info.suffix().toStdString();
        if (std::find(allowed.begin(), allowed.end(), suffix) == allowed.end())
            return true;
    }
    return false;
}
