// How much of a run's code its style would change, as the window's figure and a check's last line
// say it: the lines of each file that would change which its revision no longer holds (counted as
// lines_left_as_they_are.h counts them), of the lines of every file the run took.
#ifndef STYLE_TARNEL_ENGINE_LINES_CHANGED_IN_RUN_H
#define STYLE_TARNEL_ENGINE_LINES_CHANGED_IN_RUN_H

#include <QString>
#include <QStringList>

#include <mutex>
#include <string>
#include <utility>
#include <vector>

class lines_changed_in_run {
public:
    // A file that would change, as a run's `would_change` hands it; from any thread.
    void take(QString const& path, std::string const& text, std::string const& revised);
    // After the run: the lines of the first `done` of the run's files (all of them unless it was
    // stopped), and the files that change put in order, the most changed first, then by path.
    void add_lines_of(QStringList const& files, int done);

    unsigned long lines = 0;
    unsigned long lines_changed = 0;
    int files = 0;
    int files_changed = 0;
    std::vector<std::pair<QString, unsigned long>> changed_files;

private:
    std::mutex lock;
};

// The lines of `text` that `revised` no longer holds.
unsigned long lines_changed_between(std::string const& text, std::string const& revised);

#endif
