// How much of a task's code its style would change: the figures of a check of the task in memory,
// line by line (a line changes when the revised file no longer holds it), and the files that
// change, most changed first.
#ifndef STYLE_TARNEL_CORE_CHANGES_UNDER_STYLE_H
#define STYLE_TARNEL_CORE_CHANGES_UNDER_STYLE_H

#include <QString>

#include <string>
#include <utility>
#include <vector>

struct changes_under_style {
    // False when the run could not start (no plugin, a broken addon...): `report` says why.
    bool started = false;
    // Stopped before the last file: the figures count the files done.
    bool stopped = false;
    std::string report;
    unsigned long lines = 0;
    unsigned long lines_changed = 0;
    int files = 0;
    int files_changed = 0;
    // Each file that changes with its changed lines, the most first (then by path).
    std::vector<std::pair<QString, unsigned long>> changed_files;
};

#endif
