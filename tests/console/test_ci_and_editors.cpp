// The command line in CI, editors and commit hooks, through the copied executable: checks and
// diffs that write nothing and say with their status whether anything would change, diffs that
// `git apply` takes, standard input to standard output, an addon file used without importing it,
// and the project's .style-tarnel file.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>

namespace {

// Every file below `directory` with its bytes and its modification time to the nanosecond.
QMap<QString, QByteArray> snapshot_of(QString const& directory) {
    QMap<QString, QByteArray> files;
    QDirIterator it(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QString const path = it.next();
        struct stat status {};
        ::stat(QFile::encodeName(path).constData(), &status);
        files[path] = temporary_bundle::contents_of(path) + "@" +
                      QByteArray::number(static_cast<qlonglong>(status.st_mtim.tv_sec)) + "." +
                      QByteArray::number(static_cast<qlonglong>(status.st_mtim.tv_nsec));
    }
    return files;
}

void write_files(temporary_bundle const& bundle, QString const& files, QString const& below = QString()) {
    if (files.isEmpty())
        return;
    for (QString const& file : files.split(" | "))
        bundle.write_file(below + file.section('=', 0, 0), unescaped(file.section('=', 1)));
}

int git(QString const& directory, QStringList const& arguments, QByteArray const& input = QByteArray()) {
    QProcess process;
    process.setWorkingDirectory(directory);
    process.start("git", arguments);
    process.waitForStarted();
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(60000);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

}  // namespace

class test_ci_and_editors : public QObject {
    Q_OBJECT
private slots:
    void answers_data();
    void answers();
    void the_diff_applies_with_git_apply_data();
    void the_diff_applies_with_git_apply();
    void an_addon_file_is_refused_as_an_import_refuses_it_data();
    void an_addon_file_is_refused_as_an_import_refuses_it();
    void a_nesting_bomb_is_a_syntax_error_in_every_mode_data();
    void a_nesting_bomb_is_a_syntax_error_in_every_mode();
};

// The rows come from checks.txt, which tells what each column holds.
void test_ci_and_editors::answers_data() {
    QTest::addColumn<QString>("files");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QString>("after");
    for (auto const& row : cases_in(QFINDTESTDATA("checks.txt")))
        QTest::newRow(qPrintable(row["case"]))
            << row["files"] << (row["first"].isEmpty() ? QStringList() : row["first"].split(" | "))
            << row["words"].split(" | ") << unescaped(row["input"]) << row["status"].toInt() << unescaped(row["out"])
            << unescaped(row["err"]) << row["after"];
}

void test_ci_and_editors::answers() {
    QFETCH(QString, files);
    QFETCH(QStringList, first);
    QFETCH(QStringList, words);
    QFETCH(QByteArray, input);
    QFETCH(int, status);
    QFETCH(QByteArray, out);
    QFETCH(QByteArray, err);
    QFETCH(QString, after);
    installed_bundle bundle;
    write_files(bundle, files);
    if (!first.isEmpty())
        QCOMPARE(bundle.run(first).status, 0);
    QMap<QString, QByteArray> const work = snapshot_of(bundle.work_directory());
    QMap<QString, QByteArray> const settings = snapshot_of(bundle.config_home());
    run_options options;
    options.input = input;
    auto filled = [&](QByteArray text) { return text.replace("%W", bundle.work_directory().toUtf8()); };
    COMPARE_RUN(bundle.run(words, options), filled(err), filled(out), status);
    if (words.contains("--check") || words.contains("--diff")) {
        QCOMPARE(snapshot_of(bundle.work_directory()), work);
        QCOMPARE(snapshot_of(bundle.config_home()), settings);
    }
    if (!after.isEmpty())
        for (QString const& file : after.split(" | "))
            QCOMPARE(bundle.contents_of(bundle.work_directory() + "/" + file.section('=', 0, 0)),
                     unescaped(file.section('=', 1)));
}

// Files below src/; the diff of a check, applied by git to them, gives what a revision writes.
void test_ci_and_editors::the_diff_applies_with_git_apply_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("files");
    QTest::newRow("changes far apart make two hunks")
        << "Test" << "Plain" << "a.tst=1  x\n2\n3\n4\n5\n6\n7\n8\n9  x\n10\n | b.tst=in  style\n";
    QTest::newRow("changes six lines apart share a hunk") << "Test" << "Plain" << "a.tst=1  x\n2\n3\n4\n5\n6\n7\n8  x\n";
    QTest::newRow("no line end at the end") << "Test" << "Plain" << "a.tst=1\n2  x | sub/b.test=a  b";
    QTest::newRow("a blank in a path") << "Test" << "Plain" << "my sources/a b.tst=a  b\n";
    QTest::newRow("carriage returns") << "Test" << "Plain" << "a.tst=1  x\r\n2\r\n3  x\r\n";
    QTest::newRow("lines joined and split by C++")
        << "C++" << "Google"
        << "a.cpp=int f( int a ){\nif(a)\n{\nreturn 1;}\nreturn 0;}\nint g();\n\n\n\nint h() { return 2; }\n"
           " | b.h=struct S\n{\nint a; int b;\n};";
}

void test_ci_and_editors::the_diff_applies_with_git_apply() {
    QFETCH(QString, language);
    QFETCH(QString, style);
    QFETCH(QString, files);
    installed_bundle bundle;
    if (language == "C++") {
        bundle.add_plugin(built::build_dir() + "/PlugIns/languages/libcpp-language-plugin.so");
        bundle.add_addon("Google[C++].style",
                         bundle.contents_of(built::build_dir() + "/PlugIns/styles/Google[C++].style"));
    }
    write_files(bundle, files, "src/");
    write_files(bundle, files, "revised/src/");
    QString const work = bundle.work_directory();
    QStringList const words{"-l=" + language, "-s=" + style, "-p=src"};
    run_result const diff = bundle.run(words + QStringList{"--diff"});
    QCOMPARE(diff.status, 1);
    run_options in_copy;
    in_copy.working_directory = work + "/revised";
    QCOMPARE(bundle.run(words, in_copy).status, 0);
    QCOMPARE(git(work, {"init", "-q"}), 0);
    QVERIFY2(git(work, {"apply", "-"}, diff.out) == 0, diff.out.constData());
    for (QString const& file : files.split(" | ")) {
        QString const name = "/src/" + file.section('=', 0, 0);
        QCOMPARE(bundle.contents_of(work + name), bundle.contents_of(work + "/revised" + name));
    }
}

// Files that an import refuses: --addon refuses them in the same words, and changes nothing.
void test_ci_and_editors::an_addon_file_is_refused_as_an_import_refuses_it_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << "missing.style" << QByteArray();
    QTest::newRow("not named .style") << "House[Test].txt" << addon_text("House", "Test");
    QTest::newRow("a dot before .style") << "a.b.style" << addon_text("House", "Test");
    QTest::newRow("a language not installed") << "K[C].style" << addon_text("K", "C");
    QTest::newRow("no language") << "NoLanguage[Test].style" << QByteArray("NAME=NoLanguage\n");
    QTest::newRow("an empty style name") << "Empty[Test].style" << QByteArray("NAME=\nLANGUAGE=Test\n");
}

void test_ci_and_editors::an_addon_file_is_refused_as_an_import_refuses_it() {
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    installed_bundle bundle;
    bundle.write_file("a.tst", "a  b\n");
    if (!content.isEmpty())
        bundle.write_file(file, content);
    run_result const imported = bundle.run({"--import=" + file});
    QCOMPARE(imported.status, 1);
    QCOMPARE(bundle.installed_addons(), installed_bundle().installed_addons());
    COMPARE_RUN(bundle.run({"--addon=" + file, "-p=a.tst"}), imported.err, "", 1);
    QCOMPARE(bundle.contents_of(bundle.work_directory() + "/a.tst"), QByteArray("a  b\n"));
}

// 50,000 parentheses overflowed the engine's stack: the program died in every mode. A refusal
// as a syntax error gives standard input back, lets a check answer 2, and a run revise the rest.
void test_ci_and_editors::a_nesting_bomb_is_a_syntax_error_in_every_mode_data() {
    QTest::addColumn<QString>("mode");
    QTest::newRow("standard input") << "-";
    QTest::newRow("check") << "--check";
    QTest::newRow("tree") << "src";
}

void test_ci_and_editors::a_nesting_bomb_is_a_syntax_error_in_every_mode() {
    QFETCH(QString, mode);
    installed_bundle bundle;
    bundle.add_plugin(built::build_dir() + "/PlugIns/languages/libcpp-language-plugin.so");
    bundle.add_addon("Google[C++].style", bundle.contents_of(built::build_dir() + "/PlugIns/styles/Google[C++].style"));
    QByteArray const bomb = "int x = " + QByteArray(50000, '(') + "1" + QByteArray(50000, ')') + ";\n";
    QByteArray const other = "int  f( ){return 1;}\n";
    bundle.write_file("src/bomb.cpp", bomb);
    bundle.write_file("src/other.cpp", other);
    QString const work = bundle.work_directory();
    QStringList words{"-l=C++", "-s=Google"};
    run_options options;
    if (mode == "-")
        options.input = bomb;
    words << (mode == "--check" ? QStringList{"-p=src", "--check"} : QStringList{"-p=" + mode});
    run_result const run = bundle.run(words, options);
    QVERIFY(!run.crashed);
    QString const refused = "Sorry, I can't revise file '%1', because it contains syntax error";
    if (mode == "-") {
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, bomb);
        QVERIFY2(run.err.contains(refused.arg("-").toUtf8()), run.err.constData());
        return;
    }
    QByteArray const said = run.out + run.err;
    QVERIFY2(said.contains(refused.arg(work + "/src/bomb.cpp").toUtf8()), said.constData());
    QCOMPARE(bundle.contents_of(work + "/src/bomb.cpp"), bomb);
    if (mode == "--check") {
        QCOMPARE(run.status, 2);
        QVERIFY2(said.contains(("File '" + work + "/src/other.cpp' would be changed.").toUtf8()), said.constData());
        QCOMPARE(bundle.contents_of(work + "/src/other.cpp"), other);
    } else {
        QCOMPARE(bundle.contents_of(work + "/src/other.cpp"), QByteArray("int f() { return 1; }\n"));
    }
}

QTEST_GUILESS_MAIN(test_ci_and_editors)
#include "test_ci_and_editors.moc"
