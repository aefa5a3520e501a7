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
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
    // A commit needs a name, which the machine's settings need not give.
    process.start("git", QStringList{"-c", "user.name=Tester", "-c", "user.email=tester@example.org"} + arguments);
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
    void progress_goes_to_a_terminal_unless_quiet_data();
    void progress_goes_to_a_terminal_unless_quiet();
    void the_diff_applies_with_git_apply_data();
    void the_diff_applies_with_git_apply();
    void an_addon_file_is_refused_as_an_import_refuses_it_data();
    void an_addon_file_is_refused_as_an_import_refuses_it();
    void standard_input_fails_when_standard_output_does_data();
    void standard_input_fails_when_standard_output_does();
    void a_name_git_cannot_read_is_left_out_of_the_diff_data();
    void a_name_git_cannot_read_is_left_out_of_the_diff();
    void files_the_system_cannot_name_are_counted_and_reported_data();
    void files_the_system_cannot_name_are_counted_and_reported();
    void a_damaged_inference_cache_entry_is_inferred_again_data();
    void a_damaged_inference_cache_entry_is_inferred_again();
    void a_form_of_blanks_is_inferred_as_one_without_them_data();
    void a_form_of_blanks_is_inferred_as_one_without_them();
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
    QTest::addColumn<QStringList>("git_steps");
    QTest::addColumn<QStringList>("then");
    QTest::addColumn<QString>("setup");
    for (auto const& row : cases_in(QFINDTESTDATA("checks.txt")))
        QTest::newRow(qPrintable(row["case"]))
            << row["files"] << (row["first"].isEmpty() ? QStringList() : row["first"].split(" | "))
            << row["words"].split(" | ") << unescaped(row["input"]) << row["status"].toInt() << unescaped(row["out"])
            << unescaped(row["err"]) << row["after"]
            << (row["git"].isEmpty() ? QStringList() : row["git"].split(" | "))
            << (row["then"].isEmpty() ? QStringList() : row["then"].split(" | ")) << row["setup"];
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
    QFETCH(QStringList, git_steps);
    QFETCH(QStringList, then);
    QFETCH(QString, setup);
    installed_bundle bundle;
    if (setup == "SDK example") {
        bundle.add_plugin(built::example_plugin());
        bundle.add_addon("Spaced[INI].style", bundle.contents_of(built::source_dir() + "/sdk/example/Spaced[INI].style"));
    }
    write_files(bundle, files);
    for (QString const& step : git_steps)
        QVERIFY2(git(bundle.work_directory(), step == "init" ? QStringList{"init", "-q"} : step.split(' ')) == 0,
                 qPrintable(step));
    for (QString const& step : then) {
        if (step.startsWith("git "))
            QVERIFY2(git(bundle.work_directory(), step.mid(4).split(' ')) == 0, qPrintable(step));
        else
            write_files(bundle, step);
    }
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
    // A run of some lines neither reads nor writes change records.
    if (!words.filter(QRegularExpression("^--(lines=|changed)")).isEmpty())
        QCOMPARE(snapshot_of(bundle.config_home()), settings);
    if (!after.isEmpty())
        for (QString const& file : after.split(" | "))
            QCOMPARE(bundle.contents_of(bundle.work_directory() + "/" + file.section('=', 0, 0)),
                     unescaped(file.section('=', 1)));
}

// On a terminal (made by script(1)), the progress line is written, unless --quiet. Faults: the
// progress left out on a terminal too, or written there in spite of --quiet.
void test_ci_and_editors::progress_goes_to_a_terminal_unless_quiet_data() {
    QTest::addColumn<QString>("words");
    QTest::addColumn<bool>("progress");
    QTest::newRow("revision") << "-l=Test -s=Plain -p=a.tst" << true;
    QTest::newRow("quiet revision") << "-l=Test -s=Plain -p=a.tst --quiet" << false;
    QTest::newRow("check") << "-l=Test -s=Plain -p=a.tst --check" << true;
    QTest::newRow("quiet check") << "-l=Test -s=Plain -p=a.tst --check --quiet" << false;
}

void test_ci_and_editors::progress_goes_to_a_terminal_unless_quiet() {
    QFETCH(QString, words);
    QFETCH(bool, progress);
    installed_bundle bundle;
    bundle.write_file("a.tst", "a  b\n");
    QProcess terminal;
    terminal.setProcessEnvironment(bundle.environment());
    terminal.setWorkingDirectory(bundle.work_directory());
    // Standard input stays out of the terminal, so that no first-start question is asked.
    terminal.start("script", {"-qec", "'" + bundle.executable() + "' " + words + " < /dev/null", "/dev/null"});
    terminal.closeWriteChannel();
    QVERIFY(terminal.waitForFinished(60000));
    QByteArray const seen = terminal.readAllStandardOutput();
    QVERIFY2(seen.contains("It's done."), seen.constData());
    QCOMPARE(seen.contains("Preparing, please wait..."), progress);
    QCOMPARE(seen.contains(" from 1 files"), progress);
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
    // The walk finds the files by the plugins' own extensions.
    QTest::newRow("lines joined and split by Java")
        << "Java" << "Google"
        << "a/A.java=class A{\nint f( int a ){\nif(a>0)\n{\nreturn a>>>1;}\nreturn 0;}}\n"
           " | b/B.java=@interface B\n{\nint a(); int b();\n}";
    QTest::newRow("lines joined and split by Protocol Buffers")
        << "Protocol Buffers" << "Google"
        << "a.proto=syntax = \"proto3\";\nmessage A{\nint32 a=1; string b = 2;}\n"
           " | b/b.proto=service B { rpc Get(A)\nreturns (A); }";
    QTest::newRow("lines joined and split by Objective-C")
        << "Objective-C" << "Google"
        << "a.m=@implementation A\n-(int)f:(int)a{\nif(a)\n{\nreturn [self g:@[@1]];}\nreturn 0;}\n@end\n"
           " | b/b.mm=@interface B:NSObject\n@property(nonatomic)int a; -(void)b;\n@end";
    QTest::newRow("lines joined and split by C#")
        << "C#" << "Microsoft"
        << "a/A.cs=namespace N{\nclass A{\nint F( int a ){\nif(a>0){\nreturn a??1;}\nreturn 0;}}}\n"
           " | b.cs=class B\n{\nstring S=>@\"x\\\";  int P { get; set; }\n}";
    QTest::newRow("lines joined and split by JavaScript")
        << "JavaScript" << "Google"
        << "a/a.js=function f( a ){\nif(a>0)\n{\nreturn a>>>1;}\nreturn `${a}`;}\n"
           " | b/b.ts=interface B\n{\na: number; b(): void;\n}";
}

void test_ci_and_editors::the_diff_applies_with_git_apply() {
    QFETCH(QString, language);
    QFETCH(QString, style);
    QFETCH(QString, files);
    installed_bundle bundle;
    std::map<QString, QString> const our_plugins = {{"C++", "libcpp-language-plugin.so"},
                                                    {"Java", "libjava-language-plugin.so"},
                                                    {"Protocol Buffers", "libproto-language-plugin.so"},
                                                    {"Objective-C", "libobjc-language-plugin.so"},
                                                    {"C#", "libcsharp-language-plugin.so"},
                                                    {"JavaScript", "libjavascript-language-plugin.so"}};
    if (our_plugins.count(language)) {
        bundle.add_plugin(built::build_dir() + "/PlugIns/languages/" + our_plugins.at(language));
        QString const addon = style + "[" + language + "].style";
        bundle.add_addon(addon, bundle.contents_of(built::build_dir() + "/PlugIns/styles/" + addon));
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
    // Empty: the import's own words. A file without a language line is no addon to use: the
    // import, which looks for its language first, says there is no language ''.
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("missing") << "missing.style" << QByteArray() << QByteArray();
    QTest::newRow("not named .style") << "House[Test].txt" << addon_text("House", "Test") << QByteArray();
    QTest::newRow("a dot before .style") << "a.b.style" << addon_text("House", "Test") << QByteArray();
    QTest::newRow("a language not installed") << "K[C].style" << addon_text("K", "C") << QByteArray();
    QTest::newRow("no language") << "NoLanguage[Test].style" << QByteArray("NAME=NoLanguage\n")
                                 << QByteArray("I cannot import style '%W/NoLanguage[Test].style', it has invalid format. "
                                               "For more info please read https://style-tarnel.org/user-guide/"
                                               "style-addon-by-hand.\n");
    QTest::newRow("an empty style name") << "Empty[Test].style" << QByteArray("NAME=\nLANGUAGE=Test\n") << QByteArray();
}

void test_ci_and_editors::an_addon_file_is_refused_as_an_import_refuses_it() {
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, words);
    installed_bundle bundle;
    bundle.write_file("a.tst", "a  b\n");
    if (!content.isEmpty())
        bundle.write_file(file, content);
    run_result const imported = bundle.run({"--import=" + file});
    QCOMPARE(imported.status, 1);
    QCOMPARE(bundle.installed_addons(), installed_bundle().installed_addons());
    QByteArray const expected =
        words.isEmpty() ? imported.err : QByteArray(words).replace("%W", bundle.work_directory().toUtf8());
    COMPARE_RUN(bundle.run({"--addon=" + file, "-p=a.tst"}), expected, "", 1);
    QCOMPARE(bundle.contents_of(bundle.work_directory() + "/a.tst"), QByteArray("a  b\n"));
}

// The editor gets its buffer back on standard output, or, when that cannot be written, a status
// that says so: never 0 for a text that went nowhere.
void test_ci_and_editors::standard_input_fails_when_standard_output_does_data() {
    QTest::addColumn<QString>("redirection");
    QTest::addColumn<QString>("mode");
    for (auto const& [name, redirection] : {std::pair{"closed", "exec >&-;"}, {"full", "exec >/dev/full;"}})
        for (auto const& mode : {"revise", "diff"})
            QTest::newRow(qPrintable(QString(name) + ", " + mode)) << redirection << mode;
}

void test_ci_and_editors::standard_input_fails_when_standard_output_does() {
    QFETCH(QString, redirection);
    QFETCH(QString, mode);
    installed_bundle bundle;
    run_options options;
    options.input = "a  b\n";
    options.shell_prefix = redirection;
    QStringList words{"-l=Test", "-s=Plain", "-p=-"};
    if (mode == "diff")
        words << "--diff";
    run_result const result = bundle.run(words, options);
    QCOMPARE(QString::fromUtf8(result.err), QString("I cannot write the text to standard output, it is closed or full.\n"));
    QCOMPARE(result.status, 2);
}

// Names git reads otherwise in a diff header: the file is named on standard error and left out,
// so that `git apply` takes the rest of the diff.
void test_ci_and_editors::a_name_git_cannot_read_is_left_out_of_the_diff_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("a tab") << QByteArray("a\tb.tst");
    QTest::newRow("a line feed") << QByteArray("a\nb.tst");
    QTest::newRow("a carriage return") << QByteArray("a\rb.tst");
    QTest::newRow("a date and time at the end") << QByteArray("notes 2024-01-31 10:00:00.000");
}

void test_ci_and_editors::a_name_git_cannot_read_is_left_out_of_the_diff() {
    QFETCH(QByteArray, name);
    installed_bundle bundle;
    QString const work = bundle.work_directory();
    QString const odd = bundle.write_file("src/" + QFile::decodeName(name), "a  b\n");
    bundle.write_file("src/ok.tst", "c  d\n");
    run_result const diff = bundle.run({"-l=Test", "-s=Plain", "-p=src", "--exts=tst,000", "--diff"});
    QCOMPARE(diff.status, 1);
    QVERIFY2(diff.err.contains("File '" + odd.toUtf8() + "' is left out of the diff: git cannot read its name there"),
             diff.err.constData());
    QVERIFY(!diff.out.contains(name));
    QCOMPARE(git(work, {"init", "-q"}), 0);
    QVERIFY2(git(work, {"apply", "-"}, diff.out) == 0, diff.out.constData());
    QCOMPARE(bundle.contents_of(work + "/src/ok.tst"), QByteArray("c d\n"));
    QCOMPARE(bundle.contents_of(odd), QByteArray("a  b\n"));
    // Standard input under such a name: named, and no diff.
    run_options options;
    options.input = "a  b\n";
    run_result const from_input =
        bundle.run({"-l=Test", "-s=Plain", "-p=-", "--assume-filename=" + QFile::decodeName(name), "--diff"}, options);
    QCOMPARE(from_input.out, QByteArray());
    QVERIFY(from_input.err.contains("is left out of the diff"));
    QCOMPARE(from_input.status, 1);
}

namespace {

// Makes a file below `directory` whose path is given as bytes, one directory at a time from the
// descriptor of the one above, so that a path longer than the system takes can be made.
bool make_file_at(QString const& directory, QList<QByteArray> const& parts, QByteArray const& content) {
    int at = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; at >= 0 && i + 1 < parts.size(); ++i) {
        ::mkdirat(at, parts[i].constData(), 0755);
        int const below = ::openat(at, parts[i].constData(), O_RDONLY | O_DIRECTORY);
        ::close(at);
        at = below;
    }
    if (at < 0)
        return false;
    int const file = ::openat(at, parts.last().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ::close(at);
    if (file < 0)
        return false;
    bool const written = ::write(file, content.constData(), static_cast<size_t>(content.size())) == content.size();
    ::close(file);
    return written;
}

}  // namespace

// Files a path cannot name to the system (longer than 4,096 bytes), or whose names are not UTF-8,
// are found and counted, and the report names each; none is left out unseen.
void test_ci_and_editors::files_the_system_cannot_name_are_counted_and_reported_data() {
    QTest::addColumn<QList<QByteArray>>("parts");
    QList<QByteArray> deep;
    for (int level = 0; level < 20; ++level)
        deep << QByteArray(250, 'd');
    deep << "deep.tst";
    QTest::newRow("a path longer than 4096 bytes") << deep;
    QTest::newRow("a name that is not UTF-8") << QList<QByteArray>{"sub", "caf\xe9.tst"};
}

void test_ci_and_editors::files_the_system_cannot_name_are_counted_and_reported() {
    QFETCH(QList<QByteArray>, parts);
    installed_bundle bundle;
    bundle.write_file("src/ok.tst", "c  d\n");
    QVERIFY(make_file_at(bundle.work_directory() + "/src", parts, "a  b\n"));
    run_result const result = bundle.run({"-l=Test", "-s=Plain", "-p=src"});
    QVERIFY2(result.out.contains("2 files was found"), result.out.constData());
    QString const reported = QFile::decodeName(bundle.work_directory().toUtf8() + "/src/" + parts.join('/'));
    QVERIFY2(QString::fromUtf8(result.out).contains("Sorry, I can't revise file '" + reported + "'"), result.out.constData());
    QCOMPARE(bundle.contents_of(bundle.work_directory() + "/src/ok.tst"), QByteArray("c d\n"));
}

// An entry of the inference cache that was emptied, cut short or edited is not trusted: the
// revision is the style's, as with no entry at all, and the entry is whole again afterwards. And
// an addon whose form holds a run of 800 KB of blanks is inferred as the form without them.
void test_ci_and_editors::a_damaged_inference_cache_entry_is_inferred_again_data() {
    QTest::addColumn<QString>("damage");
    QTest::newRow("emptied") << "emptied";
    QTest::newRow("cut after 100 lines") << "cut after 100 lines";
    QTest::newRow("an option changed") << "an option changed";
}

void test_ci_and_editors::a_damaged_inference_cache_entry_is_inferred_again() {
    QFETCH(QString, damage);
    installed_bundle bundle;
    QVERIFY(bundle.add_plugin(built::build_dir() + "/PlugIns/languages/libc-language-plugin.so"));
    bundle.add_addon("GNU[C].style", bundle.contents_of(built::build_dir() + "/PlugIns/styles/GNU[C].style"));
    run_options options;
    options.input = "int f(int a){if(a){return 1;}return 0;}\n";
    QStringList const words{"-l=C", "-s=GNU", "-p=-"};
    run_result const first = bundle.run(words, options);
    QCOMPARE(first.status, 0);
    QVERIFY(first.out != options.input);
    QStringList const entries = QDir(bundle.cache_home() + "/style-tarnel").entryList({"*.clang-format"}, QDir::Files);
    QCOMPARE(entries.size(), 1);
    QString const entry = bundle.cache_home() + "/style-tarnel/" + entries.first();
    QByteArray const whole = bundle.contents_of(entry);
    QByteArray damaged;
    if (damage == "cut after 100 lines")
        damaged = whole.left(static_cast<int>(std::distance(whole.begin(), std::find_if(whole.begin(), whole.end(), [n = 0](char c) mutable {
                                  return c == '\n' && ++n == 100;
                              }))) + 1);
    else if (damage == "an option changed")
        damaged = QByteArray(whole).replace("\nIndentWidth:     2\n", "\nIndentWidth:     8\n");
    QVERIFY(damaged != whole);
    QFile file(entry);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(damaged);
    file.close();
    COMPARE_RUN(bundle.run(words, options), "", first.out, 0);
    QCOMPARE(bundle.contents_of(entry), whole);
}

// A form whose white space runs for hundreds of kilobytes tells no more than a sane one: the
// search for the options, which formats the forms thousands of times, must not take it whole.
// The bound is twenty times what such a run takes here (about a second, with the search); it
// took 35 s when the form was searched whole, and a Ctrl-C waited for it. Under AddressSanitizer
// every engine call is several times slower, and the bound with it.
void test_ci_and_editors::a_form_of_blanks_is_inferred_as_one_without_them_data() {
    QTest::addColumn<QByteArray>("blanks");
    QTest::newRow("800 KB of blanks") << QByteArray(800000, ' ');
}

void test_ci_and_editors::a_form_of_blanks_is_inferred_as_one_without_them() {
    QFETCH(QByteArray, blanks);
    installed_bundle bundle;
    QVERIFY(bundle.add_plugin(built::build_dir() + "/PlugIns/languages/libc-language-plugin.so"));
    QByteArray const gnu = bundle.contents_of(built::build_dir() + "/PlugIns/styles/GNU[C].style");
    bundle.add_addon("GNU[C].style", gnu);
    QByteArray const form = "type name[] = { SOME, SOME, SOME };";
    QVERIFY(gnu.contains(form));
    bundle.write_file("Blanks[C].style", QByteArray(gnu).replace("NAME=GNU", "NAME=Blanks")
                                             .replace(form, "type name[] = {" + blanks + "SOME, SOME, SOME };"));
    run_options options;
    options.input = "int f(int a){if(a){return 1;}return 0;}\n";
    run_result const in_style = bundle.run({"-l=C", "-s=GNU", "-p=-"}, options);
#ifdef __SANITIZE_ADDRESS__
    options.timeout_ms = 80000;
#else
    options.timeout_ms = 20000;
#endif
    COMPARE_RUN(bundle.run({"--addon=Blanks[C].style", "-p=-", "--assume-filename=a.c"}, options), "", in_style.out, 0);
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
        QCOMPARE(run.status, 0);
        QCOMPARE(bundle.contents_of(work + "/src/other.cpp"), QByteArray("int f() { return 1; }\n"));
    }
}

QTEST_GUILESS_MAIN(test_ci_and_editors)
#include "test_ci_and_editors.moc"
