// Turns the paths of a revision task into the ordered list of files to revise, and checks the
// files named directly against the task's extensions before anything is touched.
#ifndef STYLE_TARNEL_ENGINE_FILE_COLLECTION_H
#define STYLE_TARNEL_ENGINE_FILE_COLLECTION_H

#include "engine/ignore_request.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

class git_ignores;

// Appends to `parts` the pieces of `text` between occurrences of `separator`; an empty `text`
// adds nothing. Empty pieces (two separators in a row) are kept.
void split_by_string(std::vector<std::string>& parts, std::string const& text,
                     std::string const& separator);

class obtain_full_file_paths_from {
public:
    explicit obtain_full_file_paths_from(QStringList paths) : paths(std::move(paths)) {}

    // The walk of a directory leaves out what the ignore rules leave out: the patterns of every
    // `.style-tarnel-ignore` from the directory's work tree root (or the file system's root,
    // outside a work tree) down to each file, those `request` gives, and, when it asks for them,
    // git's. A directory left out is not walked, also when it is given or lies above one given
    // (within the work tree). A file given is never left out.
    obtain_full_file_paths_from& following(ignore_request const& request);

    // Every path in order: a directory gives its regular files below it, at any depth, whose
    // names match one of the extensions (letters of either case; symbolic links, hidden files and
    // hidden directories left out), as absolute paths, also below a path longer than the system
    // takes and under names that are not UTF-8 (whose paths then name no file the run can open,
    // so that it reports them); a regular file gives itself, as given; anything else gives
    // nothing. `extensions` are separated by spaces.
    QStringList with(QString const& extensions) const;
    QStringList paths_from_this(QString const& path, QStringList const& name_filters) const;

private:
    QStringList paths;
    ignore_request const* ignoring = nullptr;
    mutable int left_out = 0;
    mutable git_ignores* git = nullptr;  // during `with`
};

class there_are_some {
public:
    explicit there_are_some(QStringList paths) : paths(std::move(paths)) {}

    // True when a path names a regular file whose suffix is none of `extensions` (joined by
    // single spaces, compared exactly). Directories and missing paths are not checked.
    bool with_extensions_that_not_corresponds_to(std::string const& extensions) const;

private:
    QStringList paths;
};

#endif
