// What a directory walk leaves out: git's ignore syntax in .style-tarnel-ignore files (the cases
// are in ignore_syntax.txt, each also proven against git on a temporary repository), ignore files
// above the walked directory, and the files git ignores in a work tree.
#include "engine/file_collection.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

void write(QString const& path, QByteArray const& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// Writes `files` below `root`, and each ignore file ("directory=lines") under `ignore_name`.
void lay_out(QString const& root, QStringList const& files, QStringList const& ignore_files,
             QString const& ignore_name) {
    for (QString const& file : files)
        write(root + "/" + file, "x\n");
    for (QString const& entry : ignore_files) {
        int const at = entry.indexOf('=');
        write(root + "/" + entry.left(at) + "/" + ignore_name, unescaped(entry.mid(at + 1)));
    }
}

QStringList relative_sorted(QStringList const& paths, QString const& root) {
    QStringList relative;
    for (QString const& path : paths)
        relative << QDir(root).relativeFilePath(path);
    relative.sort();
    return relative;
}

// The files git does not ignore in the work tree at `root`, among those ending in `suffix`.
QStringList kept_by_git(QString const& root, QString const& suffix) {
    QProcess git;
    git.setWorkingDirectory(root);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("GIT_CONFIG_NOSYSTEM", "1");
    environment.insert("GIT_CONFIG_GLOBAL", "/dev/null");
    environment.insert("HOME", root);
    git.setProcessEnvironment(environment);
    git.start("git", {"init", "-q"});
    git.waitForFinished();
    git.start("git", {"ls-files", "--others", "--exclude-standard", "-z"});
    git.waitForFinished();
    QStringList kept;
    for (QByteArray const& name : git.readAllStandardOutput().split('\0'))
        if (name.endsWith(suffix.toUtf8()))
            kept << QString::fromUtf8(name);
    kept.sort();
    return kept;
}

struct collection {
    QStringList kept;
    int left_out = -1;
};

collection collect(QStringList const& paths, ignore_request request, QString const& extensions = "c") {
    collection result;
    request.collected = [&](int, int left_out) { result.left_out = left_out; };
    result.kept = obtain_full_file_paths_from(paths).following(request).with(extensions);
    return result;
}

ignore_request without_git() {
    ignore_request request;
    request.git_followed = false;
    return request;
}

}  // namespace

class test_ignore_rules : public QObject {
    Q_OBJECT
private slots:
    // Faults: a pattern read otherwise than git reads it (anchoring, stars, classes, escapes,
    // negation, directories only, nested files), and a count of the files left out that is not
    // the number of files the walk did not keep.
    void the_walk_keeps_what_git_keeps_data() {
        QTest::addColumn<QStringList>("ignore_files");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QStringList>("kept");
        for (auto const& row : cases_in(QFINDTESTDATA("ignore_syntax.txt")))
            QTest::newRow(qPrintable(row["case"]))
                << row["ignore"].split(" | ") << row["files"].split(" | ")
                << (row["kept"] == "none" ? QStringList() : row["kept"].split(" | "));
    }
    void the_walk_keeps_what_git_keeps() {
        QFETCH(QStringList, ignore_files);
        QFETCH(QStringList, files);
        QFETCH(QStringList, kept);
        QTemporaryDir ours;
        lay_out(ours.path(), files, ignore_files, ".style-tarnel-ignore");
        collection const walked = collect({ours.path()}, without_git());
        QCOMPARE(relative_sorted(walked.kept, ours.path()), kept);
        QCOMPARE(walked.left_out, files.size() - kept.size());

        QTemporaryDir theirs;
        lay_out(theirs.path(), files, ignore_files, ".gitignore");
        QCOMPARE(kept_by_git(theirs.path(), ".c"), kept);
    }

    // Faults: an ignore file above the walked directory not read, or read beyond the top of the
    // work tree; a pattern of it read relative to the walked directory instead of its own; a
    // directory given that a rule above leaves out walked all the same; a file named directly
    // left out.
    void ignore_files_above_the_walked_directory_count_up_to_the_work_tree() {
        QTemporaryDir top;
        QString const tree = top.path() + "/tree";
        lay_out(top.path(), {"tree/src/gen/a.c", "tree/src/b.c", "tree/src/c.c"},
                {".=c.c", "tree=src/gen/", "tree/src=!c.c"}, ".style-tarnel-ignore");
        QProcess git;
        git.setWorkingDirectory(tree);
        git.start("git", {"init", "-q"});
        QVERIFY(git.waitForFinished());
        collection const walked = collect({tree + "/src"}, without_git());
        QCOMPARE(relative_sorted(walked.kept, tree), QStringList({"src/b.c", "src/c.c"}));
        QCOMPARE(walked.left_out, 1);
        collection const below_left_out = collect({tree + "/src/gen"}, without_git());
        QCOMPARE(below_left_out.kept, QStringList());
        QCOMPARE(below_left_out.left_out, 1);
        collection const named = collect({tree + "/src/gen/a.c"}, without_git());
        QCOMPARE(named.kept, QStringList({tree + "/src/gen/a.c"}));
        QCOMPARE(named.left_out, 0);
    }

    // Faults: git's ignored files kept, or left out with git's rules switched off; patterns of the
    // command line read relative to the walked directory instead of theirs, or outweighed by an
    // ignore file.
    void git_and_the_command_line_leave_out_too_data() {
        QTest::addColumn<bool>("git_followed");
        QTest::addColumn<QStringList>("excluded");
        QTest::addColumn<QStringList>("kept");
        QTest::newRow("git's rules") << true << QStringList() << QStringList({"src/main.c", "src/tool.c"});
        QTest::newRow("git's rules switched off")
            << false << QStringList() << QStringList({"build/gen.c", "src/main.c", "src/tool.c"});
        QTest::newRow("a pattern of the command line, relative to its directory")
            << true << QStringList({"src/tool.c"}) << QStringList({"src/main.c"});
        QTest::newRow("a pattern of the command line brings back what an ignore file leaves out")
            << true << QStringList({"!gen.c"}) << QStringList({"src/main.c", "src/tool.c"});
    }
    void git_and_the_command_line_leave_out_too() {
        QFETCH(bool, git_followed);
        QFETCH(QStringList, excluded);
        QFETCH(QStringList, kept);
        QTemporaryDir tree;
        lay_out(tree.path(), {"build/gen.c", "src/main.c", "src/tool.c", "src/gen.c"},
                {".=build/", "src=gen.c"}, ".gitignore");
        write(tree.path() + "/src/.style-tarnel-ignore", "gen.c\n");
        QProcess git;
        git.setWorkingDirectory(tree.path());
        git.start("git", {"init", "-q"});
        QVERIFY(git.waitForFinished());
        ignore_request request;
        request.git_followed = git_followed;
        request.excluded = excluded;
        request.excluded_from = tree.path();
        collection const walked = collect({tree.path()}, request);
        QStringList expected = kept;
        if (excluded == QStringList({"!gen.c"}))  // brought back by the command line, git or not
            expected << "src/gen.c";
        expected.sort();
        QCOMPARE(relative_sorted(walked.kept, tree.path()), expected);
    }
};

QTEST_APPLESS_MAIN(test_ignore_rules)
#include "test_ignore_rules.moc"
