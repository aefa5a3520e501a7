// One revision request: which language and style, which extensions, which paths.
#ifndef STYLE_TARNEL_CORE_REVISION_TASK_H
#define STYLE_TARNEL_CORE_REVISION_TASK_H

#include "interface_to_language_plugin.h"

#include <QStringList>
#include <string>
#include <vector>

struct revision_task {
    std::string language;
    std::string style;
    // Extensions without dots, separated by single spaces (UTF-8).
    std::string extensions;
    // Raw paths of files and directories, one per element.
    QStringList paths;
    // A style addon file used as it is, without importing it into the store: the language and
    // style named inside it are then the task's. Empty: the store's addon of `style` and
    // `language`.
    QString addon_path = QString();
    // Patterns in git's ignore syntax that the walk of a directory leaves out, relative to
    // `excluded_from`, besides those of the `.style-tarnel-ignore` files; they weigh more, and
    // among them those that bring a path back with '!' weigh more than the others.
    QStringList excluded = QStringList();
    QString excluded_from = QString();
    // Files that git ignores are left out of a walk in a git work tree.
    bool git_followed = true;
    // A directory below a walked one that holds a file of this name is left out of the walk: it
    // is revised by a task of its own (the project file there names its styles).
    QString subtrees_marked_by = QString();
    // No progress line, even on a terminal.
    bool quiet = false;
    // Only these lines (of the task's one file, or of a text) are revised; empty: whole files.
    // The language's plugin must offer the range interface, and no change record is kept.
    std::vector<line_range> lines = {};
    // Only the lines of each file that differ in git from this revision ("HEAD", "origin/main"),
    // staged or not, are revised; a file git does not track is wholly changed. Empty: not asked.
    std::string changed_since = std::string();
};

#endif
