#include "engine/git_ignores.h"

#include "engine/libgit2_runtime.h"

#include <git2.h>

git_ignores::git_ignores() { make_libgit2_ready(); }

git_ignores::~git_ignores() {
    for (auto& opened : repositories)
        git_repository_free(opened.second);
}

QByteArray git_ignores::work_tree_of(QByteArray const& directory) {
    // A work tree already opened that holds the directory answers without a new search.
    for (auto const& opened : repositories)
        if (directory == opened.first || directory.startsWith(opened.first + '/'))
            return opened.first;
    git_repository* repository = nullptr;
    if (git_repository_open_ext(&repository, directory.constData(), 0, nullptr) != 0)
        return QByteArray();
    char const* const root = git_repository_workdir(repository);
    if (root == nullptr) {  // a bare repository has no work tree
        git_repository_free(repository);
        return QByteArray();
    }
    QByteArray work_tree(root);
    while (work_tree.size() > 1 && work_tree.endsWith('/'))
        work_tree.chop(1);
    if (work_tree == "/")
        work_tree.clear();
    auto const known = repositories.find(work_tree);
    if (known != repositories.end())
        git_repository_free(repository);
    else
        repositories[work_tree] = repository;
    return work_tree;
}

bool git_ignores::ignores(QByteArray const& work_tree, QByteArray const& path, bool directory) {
    auto const opened = repositories.find(work_tree);
    if (opened == repositories.end() || !path.startsWith(work_tree + '/'))
        return false;
    QByteArray below = path.mid(work_tree.size() + 1);
    if (directory)
        below += '/';
    int ignored = 0;
    if (git_ignore_path_is_ignored(&ignored, opened->second, below.constData()) != 0)
        return false;
    return ignored == 1;
}
