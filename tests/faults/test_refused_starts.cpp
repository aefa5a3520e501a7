// A run that cannot start, a stop during the preparation, names that would break an addon's
// header, plugins of another interface version, and revised files that reach the disk before
// they take the place of the old ones, their renames before the report.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QFile>
#include <QStandardPaths>
#include <QtTest>

namespace {

QByteArray const done_line = "It's done." + QByteArray(25, ' ') + "\n";

}  // namespace

class test_refused_starts : public QObject {
    Q_OBJECT
private slots:
    void a_run_that_cannot_start_exits_1_data();
    void a_run_that_cannot_start_exits_1();
    void an_interruption_while_preparing_exits_130();
    void refuses_a_new_name_with_a_control_character_data();
    void refuses_a_new_name_with_a_control_character();
    void refuses_a_plugin_of_another_interface_version();
    void flushes_revised_files_before_their_renames_and_directories_before_the_report();
};

void test_refused_starts::a_run_that_cannot_start_exits_1_data() {
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QByteArray>("addon");
    QTest::addColumn<QByteArray>("report");
    QTest::newRow("a form the plugin refuses")
        << QString() << QByteArray("NAME=Plain\nLANGUAGE=Test\n\nS_NAME=block\nS_BEG\nbegin SOME end!\nS_END\n")
        << QByteArray("Sorry, format of structure 'block' in the style addon 'Plain[Test].style' is invalid. "
                      "Please make sure this addon corresponds to requirements specified at "
                      "https://style-tarnel.org/user-guide/style-addon-by-hand.\n\n");
    QTest::newRow("a plugin that fails to give its forms")
        << "TEST_PLUGIN_FORMS_THROWING" << addon_text("Plain", "Test")
        << QByteArray("Sorry, I can't revise, plugin 'libtest-language-plugin.so' failed to give the forms of its "
                      "structures.\n\n");
}

void test_refused_starts::a_run_that_cannot_start_exits_1() {
    QFETCH(QString, failing);
    QFETCH(QByteArray, addon);
    QFETCH(QByteArray, report);
    installed_bundle bundle;
    QVERIFY(bundle.add_addon(addon_file("Plain", "Test"), addon));
    QString const file = bundle.write_file("src/a.tst", "a  b\n");
    run_options options;
    if (!failing.isEmpty())
        options.extra_environment.insert(failing, "test-language-plugin");
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=src"}, options), "",
                report + "\n", 1);
    QCOMPARE(temporary_bundle::contents_of(file), QByteArray("a  b\n"));
}

// The signal comes while the addon is checked, in a run that then finds no file. A first run has
// described the plugins already, as on any machine after the first start, so the signal comes from
// the run's own check.
void test_refused_starts::an_interruption_while_preparing_exits_130() {
    installed_bundle bundle;
    bundle.write_file("src/notes.txt", "not a source\n");
    QCOMPARE(bundle.run({"--ls"}).status, 0);
    run_options interrupting;
    interrupting.extra_environment.insert("TEST_PLUGIN_INTERRUPTING", "test-language-plugin");
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=src"}, interrupting), "",
                done_line + "\nRevision was interrupted by user!\n\nNo files was found, revision was canceled.\n",
                130);
}

void test_refused_starts::refuses_a_new_name_with_a_control_character_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("line feed") << "New\nName";
    QTest::newRow("carriage return") << "New\rName";
    QTest::newRow("tab") << "New\tName";
}

void test_refused_starts::refuses_a_new_name_with_a_control_character() {
    QFETCH(QString, name);
    installed_bundle bundle;
    QStringList const before = bundle.installed_addons();
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--rename=" + name}),
                "Invalid name of style '" + name.toUtf8() + "', it must be in English.\n", "", 1);
    QCOMPARE(bundle.installed_addons(), before);
    QCOMPARE(temporary_bundle::contents_of(bundle.addons_directory() + "/Wide[Test].style"), addon_text("Wide", "Test"));
}

void test_refused_starts::refuses_a_plugin_of_another_interface_version() {
    installed_bundle bundle;
    QString const old = bundle.work_directory() + "/libold-language-plugin.so";
    QVERIFY(QFile::copy(built::test_plugin("libold-language-plugin.so"), old));
    QStringList const before = bundle.installed_plugins();
    COMPARE_RUN(bundle.run({"--import=" + old}),
                "I cannot import language '" + old.toUtf8() +
                    "', it was built for version '0.9' of the plugin interface, but this program needs version '1.0'.\n",
                "", 1);
    QCOMPARE(bundle.installed_plugins(), before);
}

// After a power loss a renamed file whose bytes never reached the disk is empty: each new file is
// flushed before its rename (an exchange, renameat2, where the file system has it). A rename that
// the report tells of must survive too: every directory holding a replaced file is flushed after
// its renames and before the report, once per run however many files it holds.
void test_refused_starts::flushes_revised_files_before_their_renames_and_directories_before_the_report() {
    if (QStandardPaths::findExecutable("strace").isEmpty())
        QSKIP("strace is not installed");
    installed_bundle bundle;
    QStringList const files{bundle.write_file("src/a.tst", "a  b\n"), bundle.write_file("src/b.tst", "c  d\n"),
                            bundle.write_file("src/inner/c.tst", "e  f\n")};
    QString const log = bundle.work_directory() + "/calls";
    QProcess process;
    QProcessEnvironment environment = bundle.environment();
    // LeakSanitizer does not work under a tracer; the sanitizer build would fail for that alone.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(bundle.work_directory());
    // -y names the file behind each descriptor: which file or directory a flush was for.
    process.start("strace", QStringList{"-f", "-qq", "-y", "-e", "trace=fsync,rename,renameat2,write", "-o", log,
                                        bundle.executable(), "-l=Test", "-s=Plain", "-p=src"});
    run_result const result = result_of_finished(process, 120000);
    QCOMPARE(result.status, 0);
    QStringList const calls = QString::fromUtf8(temporary_bundle::contents_of(log)).split('\n');
    auto first = [&](auto const& is) {
        for (int at = 0; at < calls.size(); ++at)
            if (is(calls[at]))
                return at;
        return -1;
    };
    int const report = first([](QString const& call) { return call.contains("write(1") && call.contains("It's done."); });
    QVERIFY2(report > 0, qPrintable(calls.join('\n')));
    for (QString const& file : files) {
        QCOMPARE(temporary_bundle::contents_of(file).simplified().size(), 3);
        QFileInfo const info(file);
        int const renamed = first([&](QString const& call) {
            return (call.contains("rename(") || call.contains("renameat2(")) && call.contains("\"" + file + "\"");
        });
        QVERIFY2(renamed > 0, qPrintable(file));
        QString const temporary = info.absolutePath() + "/." + info.fileName() + ".tarnel-";
        int const flushed = first([&](QString const& call) { return call.contains("fsync(") && call.contains(temporary); });
        QVERIFY2(flushed >= 0 && flushed < renamed, qPrintable(file));
        QString const directory = "<" + info.absolutePath() + ">)";
        QStringList const directory_flushes = calls.filter("fsync(").filter(directory);
        QCOMPARE(directory_flushes.size(), 1);
        int const directory_flushed = calls.indexOf(directory_flushes.front());
        QVERIFY2(renamed < directory_flushed && directory_flushed < report, qPrintable(file));
    }
}

QTEST_GUILESS_MAIN(test_refused_starts)
#include "test_refused_starts.moc"
