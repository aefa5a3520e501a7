// The lines of each file that differ in git from a revision (staged and unstaged changes both
// count), read through libgit2: one repository open and one diff per work tree and run.
#ifndef STYLE_TARNEL_ENGINE_CHANGED_LINES_H
#define STYLE_TARNEL_ENGINE_CHANGED_LINES_H

#include "interface_to_language_plugin.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

enum class changed_lines_fault { none, outside_work_tree, unknown_revision };

class changed_lines {
public:
    // Every line of a file: one that git does not track yet, or an ignored one named directly.
    static constexpr unsigned long to_the_end = static_cast<unsigned long>(-1);

    explicit changed_lines(std::string revision);
    ~changed_lines();
    changed_lines(changed_lines const&) = delete;
    changed_lines& operator=(changed_lines const&) = delete;

    // Opens the work tree that `path` (absolute, a file or a directory) lies in and diffs the
    // revision against it, once per work tree.
    changed_lines_fault prepared_for(QString const& path);

    // The changed lines of `file` (absolute, below a path prepared for), ascending; a deletion is a
    // change of the line that now stands where the deleted lines stood. Empty: none changed.
    std::vector<line_range> of(QString const& file) const;

private:
    struct work_tree;
    std::string revision;
    std::map<QByteArray, std::unique_ptr<work_tree>> work_trees;  // by their root
};

// `ranges` held within the `text`'s lines (a deletion at the end of a file, a whole untracked
// file); empty for an empty text.
std::vector<line_range> clamped_to(std::string const& text, std::vector<line_range> ranges);

#endif
