// What a revision run leaves out of the directories it walks, as the kernel asks it: the
// patterns of the command line, whether git's ignore rules count, and who hears the counts.
#ifndef STYLE_TARNEL_ENGINE_IGNORE_REQUEST_H
#define STYLE_TARNEL_ENGINE_IGNORE_REQUEST_H

#include <QString>
#include <QStringList>

#include <functional>

struct ignore_request {
    // Patterns in git's ignore syntax, relative to `excluded_from` (an absolute directory); they
    // weigh more than those of any ignore file.
    QStringList excluded;
    QString excluded_from;
    // Files that git ignores are left out when the walked directory lies in a git work tree.
    bool git_followed = true;
    // A directory below the walked one that holds a file of this name is walked by a run of its
    // own (it names its own styles): it is left out here, and not counted as left out by rules.
    // Empty: none is.
    QString subtrees_marked_by;
    // Told once the files are collected: how many were found, and how many of the task's
    // extensions the rules left out.
    std::function<void(int found, int left_out)> collected;

    // This request, whose listener also sets `left_out`.
    ignore_request counting_into(int& left_out) const;
};

#endif
