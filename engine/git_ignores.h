// What git ignores, read through libgit2: each work tree's repository is opened once, when the
// first path inside it is asked about, and kept until the object goes.
#ifndef STYLE_TARNEL_ENGINE_GIT_IGNORES_H
#define STYLE_TARNEL_ENGINE_GIT_IGNORES_H

#include <QByteArray>

#include <map>

struct git_repository;

class git_ignores {
public:
    git_ignores();
    ~git_ignores();
    git_ignores(git_ignores const&) = delete;
    git_ignores& operator=(git_ignores const&) = delete;

    // The root of the work tree that `directory` (absolute) lies in, without a trailing '/';
    // empty when it lies in none. The repository found is kept for `ignores`.
    QByteArray work_tree_of(QByteArray const& directory);

    // True when `path` (absolute, below `work_tree`, as `work_tree_of` gave it) is one that git
    // ignores: by the work tree's .gitignore files, .git/info/exclude or core.excludesFile.
    bool ignores(QByteArray const& work_tree, QByteArray const& path, bool directory);

private:
    std::map<QByteArray, git_repository*> repositories;  // by the root of their work tree
};

#endif
