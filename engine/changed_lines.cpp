#include "engine/changed_lines.h"

#include "engine/libgit2_runtime.h"

#include <QFileInfo>

#include <git2.h>

#include <algorithm>

struct changed_lines::work_tree {
    git_repository* repository = nullptr;
    git_index* index = nullptr;
    // By the path below the root, as git names it.
    std::map<QByteArray, std::vector<line_range>> changed;
    ~work_tree() {
        git_index_free(index);
        git_repository_free(repository);
    }
};

namespace {

// The directory that `path` names or lies in, with links resolved, as libgit2 gives work trees.
QByteArray real_directory_of(QString const& path) {
    QFileInfo const info(path);
    return (info.isDir() ? info.canonicalFilePath() : info.canonicalPath()).toUtf8();
}

QByteArray root_of(git_repository* repository) {
    QByteArray root(git_repository_workdir(repository));
    root = QFileInfo(QString::fromUtf8(root)).canonicalFilePath().toUtf8();
    return root;
}

int on_file(git_diff_delta const* delta, float, void* payload) {
    auto& changed = *static_cast<std::map<QByteArray, std::vector<line_range>>*>(payload);
    if (delta->status == GIT_DELTA_UNTRACKED || delta->status == GIT_DELTA_ADDED)
        changed[delta->new_file.path].push_back({1, changed_lines::to_the_end});
    return 0;
}

int on_hunk(git_diff_delta const* delta, git_diff_hunk const* hunk, void* payload) {
    auto& changed = *static_cast<std::map<QByteArray, std::vector<line_range>>*>(payload);
    if (delta->status == GIT_DELTA_UNTRACKED || delta->status == GIT_DELTA_ADDED)
        return 0;
    auto const start = static_cast<unsigned long>(std::max(hunk->new_start, 0));
    auto const count = static_cast<unsigned long>(std::max(hunk->new_lines, 0));
    if (count > 0)
        changed[delta->new_file.path].push_back({start, start + count - 1});
    else  // only deleted lines, after line `start`: the next line stands in their place
        changed[delta->new_file.path].push_back({start + 1, start + 1});
    return 0;
}

}  // namespace

changed_lines::changed_lines(std::string revision) : revision(std::move(revision)) { make_libgit2_ready(); }

changed_lines::~changed_lines() { work_trees.clear(); }

changed_lines_fault changed_lines::prepared_for(QString const& path) {
    QByteArray const directory = real_directory_of(path);
    // Opened for every path, so that a repository nested in another's work tree answers for its own.
    auto tree = std::make_unique<work_tree>();
    if (git_repository_open_ext(&tree->repository, directory.constData(), 0, nullptr) != 0 ||
        git_repository_workdir(tree->repository) == nullptr)
        return changed_lines_fault::outside_work_tree;
    QByteArray const root = root_of(tree->repository);
    if (work_trees.count(root) != 0)
        return changed_lines_fault::none;

    git_tree* base = nullptr;
    // Before the first commit HEAD names nothing yet: every line of the work tree is new, as if
    // compared with an empty tree (no base).
    bool const before_first_commit = revision == "HEAD" && git_repository_head_unborn(tree->repository) == 1;
    if (!before_first_commit) {
        git_object* object = nullptr;
        if (git_revparse_single(&object, tree->repository, revision.c_str()) != 0)
            return changed_lines_fault::unknown_revision;
        int const peeled = git_object_peel(reinterpret_cast<git_object**>(&base), object, GIT_OBJECT_TREE);
        git_object_free(object);
        if (peeled != 0)
            return changed_lines_fault::unknown_revision;
    }

    // Initialised by libgit2's functions: its macros leave fields to the compiler's zeroing, which
    // clang's -Wextra reports.
    git_diff_options options;
    git_diff_options_init(&options, GIT_DIFF_OPTIONS_VERSION);
    options.context_lines = 0;
    options.flags = GIT_DIFF_INCLUDE_UNTRACKED | GIT_DIFF_RECURSE_UNTRACKED_DIRS;
    git_diff* diff = nullptr;
    int failed = git_diff_tree_to_workdir_with_index(&diff, tree->repository, base, &options);
    git_tree_free(base);
    if (failed == 0) {
        // A renamed file (staged with its new name) keeps its old lines as unchanged.
        git_diff_find_options finding;
        git_diff_find_options_init(&finding, GIT_DIFF_FIND_OPTIONS_VERSION);
        finding.flags = GIT_DIFF_FIND_RENAMES | GIT_DIFF_FIND_FOR_UNTRACKED;
        failed = git_diff_find_similar(diff, &finding);
    }
    if (failed == 0)
        failed = git_repository_index(&tree->index, tree->repository);
    if (failed == 0)
        failed = git_diff_foreach(diff, on_file, nullptr, on_hunk, nullptr, &tree->changed);
    git_diff_free(diff);
    if (failed != 0)
        return changed_lines_fault::unknown_revision;
    work_trees[root] = std::move(tree);
    return changed_lines_fault::none;
}

std::vector<line_range> changed_lines::of(QString const& file) const {
    QFileInfo const info(file);
    QByteArray const real = (info.canonicalPath() + '/' + info.fileName()).toUtf8();
    // The innermost work tree that holds the file: the roots come in byte order, nested ones later.
    for (auto opened = work_trees.rbegin(); opened != work_trees.rend(); ++opened) {
        QByteArray const& root = opened->first;
        work_tree const* const tree = opened->second.get();
        if (!real.startsWith(root + '/'))
            continue;
        QByteArray const below = real.mid(root.size() + 1);
        auto const found = tree->changed.find(below);
        if (found != tree->changed.end())
            return found->second;
        // Not in the diff: unchanged when git tracks it, otherwise a file git ignores (named
        // directly), which it does not track either.
        if (git_index_get_bypath(tree->index, below.constData(), 0) != nullptr)
            return {};
        return {{1, to_the_end}};
    }
    return {};
}

std::vector<line_range> clamped_to(std::string const& text, std::vector<line_range> ranges) {
    if (text.empty())
        return {};
    auto const breaks = static_cast<unsigned long>(std::count(text.begin(), text.end(), '\n'));
    unsigned long const last_line = text.back() == '\n' ? breaks : breaks + 1;
    std::vector<line_range> held;
    for (line_range range : ranges) {
        range.first = std::min(std::max(range.first, 1UL), last_line);
        range.last = std::min(std::max(range.last, range.first), last_line);
        held.push_back(range);
    }
    return held;
}
