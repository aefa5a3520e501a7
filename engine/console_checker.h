// The command-line check: a revision run that writes no file and no change record, for CI and
// commit hooks. Progress goes to standard error as in a revision, when it is a terminal; the files
// that would change and the counts go to standard output, or, when a diff is asked for, to
// standard error, so that standard output holds only the diff. Without a diff the counts end with
// how many of the files' lines the style changes, in the window's words.
#ifndef STYLE_TARNEL_ENGINE_CONSOLE_CHECKER_H
#define STYLE_TARNEL_ENGINE_CONSOLE_CHECKER_H

#include "engine/revision_request.h"

#include <iosfwd>

enum class check_output { report, diff };

class console_checker {
public:
    console_checker();
    // The streams that stand for standard output and standard error.
    console_checker(std::ostream& out, std::ostream& err) : out(out), err(err) {}

    // 0 when no file would change; 1 when some file would; 2 when the run cannot start or a file
    // cannot be read or revised; 128 + the number of a SIGINT or SIGTERM that stopped it.
    int operator()(revision_request request, check_output output);

private:
    std::ostream& out;
    std::ostream& err;
    // The progress goes to a terminal only (standard error as a terminal, and not a quiet run).
    bool progress_shown = true;
};

// The path a diff shows for `path`: relative to the current directory when it lies below it,
// otherwise as it is.
std::string label_in_diff_of(QString const& path);

#endif
