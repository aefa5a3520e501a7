#include "engine/file_collection.h"

#include "engine/git_ignores.h"
#include "engine/ignore_rules.h"

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

obtain_full_file_paths_from& obtain_full_file_paths_from::following(ignore_request const& request) {
    ignoring = &request;
    return *this;
}

QStringList obtain_full_file_paths_from::with(QString const& extensions) const {
    QStringList name_filters;
    for (auto const& extension : extensions.split(' ', Qt::SkipEmptyParts)) {
        QString const filter = "*." + extension;
        if (!name_filters.contains(filter))
            name_filters << filter;
    }
    QStringList files;
    left_out = 0;
    // One for the whole collection, so that each work tree's repository is opened once.
    git_ignores repositories;
    git = &repositories;
    for (auto const& path : paths)
        files << paths_from_this(path, name_filters);
    git = nullptr;
    if (ignoring != nullptr && ignoring->collected)
        ignoring->collected(files.size(), left_out);
    return files;
}

namespace {

// Whether a directory's entry named `name` (bytes) matches one of the filters, as a directory
// listing matches them: wildcards, letters of either case.
bool matches_one_of(QList<QRegExp> const& filters, QString const& name) {
    return std::any_of(filters.begin(), filters.end(), [&](QRegExp const& filter) { return filter.exactMatch(name); });
}

// What a walk leaves out, when it follows ignore rules.
struct leaving_out {
    ignore_rules excluded;  // of the command line: they weigh most
    git_ignores* git = nullptr;
    QByteArray work_tree;   // where the walked directory's git work tree begins; empty: none
    bool git_followed = false;
    QByteArray subtree_mark;  // a directory holding a file of this name is walked on its own
    int count = 0;          // files of the walk's extensions left out
};

// The text of the ignore file in the directory open as `directory`, read from the descriptor.
QByteArray ignore_file_in(int directory) {
    QByteArray text;
    int const file = ::openat(directory, ignore_file_name, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0)
        return text;
    char buffer[4096];
    for (ssize_t got; (got = ::read(file, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<int>(got));
    ::close(file);
    return text;
}

// The regular files whose names match below a directory left out, counted as the walk would
// have found them.
int count_files_below(int directory, QList<QRegExp> const& filters);

bool left_out_by(ignore_rules const& rules, leaving_out& leaving, QByteArray const& path, bool directory) {
    auto verdict = leaving.excluded.on(path, directory);
    if (verdict == ignore_rules::verdict::none)
        verdict = rules.on(path, directory);
    if (verdict != ignore_rules::verdict::none)
        return verdict == ignore_rules::verdict::left_out;
    return leaving.git_followed && leaving.git != nullptr && !leaving.work_tree.isEmpty() &&
           leaving.git->ignores(leaving.work_tree, path, directory);
}

// Walks a directory from the descriptor of each level, not from its path: so a path longer than
// the system takes (4,096 bytes) is walked as any other. Regular files whose names match are
// added in the order of the listing, below their directory as soon as it is met; symbolic links,
// hidden files and hidden directories are left out, and so is what the ignore rules leave out
// (with `leaving` set). A name that is not UTF-8 keeps its bytes in the path as far as the path's
// text can hold them: such a file is found and counted, and the run reports the file it cannot
// open by that path, instead of leaving it out unseen.
void add_files_below(int directory, QByteArray const& path, QList<QRegExp> const& filters, QStringList& files,
                     leaving_out* leaving, ignore_rules rules) {
    if (leaving != nullptr)
        rules.add_lines(ignore_file_in(directory), path);
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
            if (below < 0)
                continue;
            if (leaving != nullptr && !leaving->subtree_mark.isEmpty() &&
                ::faccessat(below, leaving->subtree_mark.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
                ::close(below);
                continue;
            }
            if (leaving != nullptr && left_out_by(rules, *leaving, full, true))
                leaving->count += count_files_below(below, filters);
            else
                add_files_below(below, full, filters, files, leaving, rules);
        } else if (S_ISREG(status.st_mode) && matches_one_of(filters, QFile::decodeName(name))) {
            if (leaving != nullptr && left_out_by(rules, *leaving, full, false))
                ++leaving->count;
            else
                files << QFile::decodeName(full);
        }
    }
    ::closedir(listing);
}

int count_files_below(int directory, QList<QRegExp> const& filters) {
    QStringList files;
    add_files_below(directory, QByteArray(), filters, files, nullptr, ignore_rules());
    return files.size();
}

// The rules of the ignore files above `directory` (absolute, clean), from the top of its work
// tree (or the file system's root) down to its parent; false when `directory` or a directory
// between it and the top is left out, as git leaves out what lies below a directory it ignores.
bool rules_above(QByteArray const& directory, QByteArray const& top, leaving_out& leaving, ignore_rules& rules) {
    QList<QByteArray> above;
    for (QByteArray at = directory; at.size() > top.size() && at.contains('/');) {
        at.truncate(at.lastIndexOf('/'));
        above.prepend(at);
    }
    above << directory;
    for (QByteArray const& at : above) {
        if (at.size() > top.size() && left_out_by(rules, leaving, at, true))
            return false;
        if (at != directory)
            rules.add_file_of(at);
    }
    return true;
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
        QByteArray const walked = directory == "/" ? QByteArray() : directory;
        int const descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0)
            return files;
        if (ignoring == nullptr) {
            add_files_below(descriptor, walked, filters, files, nullptr, ignore_rules());
            return files;
        }
        git_ignores own_repositories;
        leaving_out leaving;
        leaving.git = git != nullptr ? git : &own_repositories;
        leaving.git_followed = ignoring->git_followed;
        leaving.subtree_mark = QFile::encodeName(ignoring->subtrees_marked_by);
        leaving.work_tree = leaving.git->work_tree_of(directory);
        QByteArray const from = QFile::encodeName(QDir::cleanPath(ignoring->excluded_from));
        for (QString const& pattern : ignoring->excluded)
            leaving.excluded.add_lines(pattern.toUtf8(), from == "/" ? QByteArray() : from);
        ignore_rules rules;
        if (rules_above(walked, leaving.work_tree, leaving, rules))
            add_files_below(descriptor, walked, filters, files, &leaving, rules);
        else
            leaving.count += count_files_below(descriptor, filters);
        left_out += leaving.count;
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
