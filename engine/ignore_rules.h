// Which files a directory walk leaves out: the patterns of `.style-tarnel-ignore` files and of the
// command line, in git's ignore syntax, each relative to the directory it was given for.
#ifndef STYLE_TARNEL_ENGINE_IGNORE_RULES_H
#define STYLE_TARNEL_ENGINE_IGNORE_RULES_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

// The name of the file that holds a directory's ignore patterns.
extern char const* const ignore_file_name;

// True when `text` matches `pattern` as git matches a path against an ignore pattern: `*` and
// `?` never match '/', `[...]` (with `!` or `^` for "none of") matches one character, `\` makes
// the next character plain, and `**` between slashes (or at either end) matches any number of
// directories.
bool path_matches(QByteArray const& pattern, QByteArray const& text);

class ignore_rules {
public:
    // Adds the lines of an ignore file (or of the command line) whose patterns are relative to
    // `directory` (an absolute path without a trailing '/'; empty for the root). Later lines,
    // and lines of later calls, weigh more: the last pattern that matches decides.
    void add_lines(QByteArray const& text, QByteArray const& directory);
    // Adds `directory`'s ignore file when it has one.
    void add_file_of(QByteArray const& directory);

    enum class verdict { none, left_out, brought_back };
    // What the last pattern that matches `path` (absolute, without a trailing '/') says of it:
    // none when no pattern matches.
    verdict on(QByteArray const& path, bool directory) const;
    bool empty() const { return patterns.empty(); }

private:
    struct pattern {
        QByteArray text;       // without '!', the trailing '/' and the leading '/'
        QByteArray directory;  // where it stands
        bool brought_back = false;
        bool directories_only = false;
        bool anchored = false;  // matched against the whole path below `directory`
    };
    std::vector<pattern> patterns;
};

#endif
