// Runs of the copied executable that meet faults midway: signals, a file-size limit, files that
// vanish, become unreadable or are edited while the plugin has them, and an addon or plugin
// replaced during the run. Every file is left either as it was or as revised, never in between,
// and no temporary file stays behind.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray const done = "It's done." + QByteArray(25, ' ') + "\n";
QByteArray const untidy_line = "int  x;\n", tidy_line = "int x;\n";

QByteArray edited_meanwhile(QString const& path) {
    return "Sorry, I can't revise file '" + path.toUtf8() + "', because it was edited while it was being revised. The edit is kept.\n\n";
}

QByteArray invalid_file(QString const& path) {
    return "Sorry, I can't revise file '" + path.toUtf8() + "'. If this file exists - please check read/write permissions.\n\n";
}

// Files src/f01.tst, src/f02.tst, ...; file n holds the untidy line n times, so sizes tell them
// apart, and the command line, which sorts its words, meets them in this order.
struct source_tree {
    source_tree(temporary_bundle const& bundle, int count) {
        for (int index = 0; index < count; ++index)
            files << bundle.write_file(QString("src/f%1.tst").arg(index + 1, 2, 10, QChar('0')), untidy(index));
    }
    static QByteArray untidy(int index) { return untidy_line.repeated(index + 1); }
    static QByteArray tidy(int index) { return tidy_line.repeated(index + 1); }
    QStringList arguments() const {
        QStringList words{"-l=Test", "-s=Plain"};
        for (auto const& file : files)
            words << "-p=" + file;
        return words;
    }
    // How many files hold their revised text, or -1 when any is neither untidy nor tidy.
    int revised() const {
        int count = 0;
        for (int index = 0; index < files.size(); ++index) {
            QByteArray const now = temporary_bundle::contents_of(files[index]);
            if (now != untidy(index) && now != tidy(index))
                return -1;
            count += now == tidy(index);
        }
        return count;
    }
    QStringList files;
};

}  // namespace

class test_runs_under_fault : public QObject {
    Q_OBJECT
private slots:
    void a_signal_stops_the_run_after_the_current_file_data();
    void a_signal_stops_the_run_after_the_current_file();
    void a_second_signal_kills_at_once_and_leaves_files_whole();
    void a_write_beyond_the_file_size_limit_leaves_the_file_as_it_was();
    void files_that_vanish_or_become_unreadable_are_reported_and_the_run_goes_on();
    void a_file_edited_or_removed_while_the_plugin_has_it_is_not_written();
    void an_edit_just_before_the_replacement_is_kept_data();
    void an_edit_just_before_the_replacement_is_kept();
    void an_addon_or_plugin_replaced_during_a_run_data();
    void an_addon_or_plugin_replaced_during_a_run();
};

void test_runs_under_fault::a_signal_stops_the_run_after_the_current_file_data() {
    QTest::addColumn<int>("signal_number");
    QTest::addColumn<int>("status");
    QTest::newRow("SIGINT") << int(SIGINT) << 130;
    QTest::newRow("SIGTERM") << int(SIGTERM) << 143;
}

void test_runs_under_fault::a_signal_stops_the_run_after_the_current_file() {
    QFETCH(int, signal_number);
    QFETCH(int, status);
    installed_bundle bundle;
    source_tree const tree(bundle, 12);
    running_program program(bundle, {"--lang=Test", "--style=Plain", "--path=src"}, 300);
    QVERIFY(program.wait_until_plugin_was_asked_about(3));
    program.send(signal_number);
    run_result const result = program.finish();
    QCOMPARE(result.crashed, false);
    QCOMPARE(result.status, status);
    QCOMPARE(QString::fromUtf8(result.out), QString::fromUtf8(done + "\nRevision was interrupted by user!\n\n" +
                                                              "12 files was found, 3 files was revised, 3 files was changed.\n"));
    QCOMPARE(result.err, QByteArray());  // no progress line: standard error is a pipe
    QCOMPARE(tree.revised(), 3);
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
    // The records of the three revised files were saved: the next run takes only the others.
    run_result const rest = bundle.run({"--lang=Test", "--style=Plain", "--path=src"});
    QCOMPARE(rest.out, done + "12 files was found, 9 files was revised, 9 files was changed.\n");
    QCOMPARE(tree.revised(), 12);
}

void test_runs_under_fault::a_second_signal_kills_at_once_and_leaves_files_whole() {
    installed_bundle bundle;
    source_tree const tree(bundle, 12);
    running_program program(bundle, {"--lang=Test", "--style=Plain", "--path=src"}, 300);
    QVERIFY(program.wait_until_plugin_was_asked_about(3));
    program.send(SIGINT);
    program.send(SIGTERM);
    run_result const result = program.finish();
    QCOMPARE(result.crashed, true);
    QCOMPARE(program.files_asked_about(), 3);
    QVERIFY(!result.out.contains("It's done."));
    QVERIFY(tree.revised() >= 0 && tree.revised() <= 3);
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

void test_runs_under_fault::a_write_beyond_the_file_size_limit_leaves_the_file_as_it_was() {
    installed_bundle bundle;
    QByteArray const large = untidy_line.repeated(4000);
    QString const large_file = bundle.write_file("src/large.tst", large);
    QString const small_file = bundle.write_file("src/small.tst", untidy_line);
    run_options options;
    options.shell_prefix = "ulimit -f 20;";  // 10 KiB: the source can be read, not rewritten
    run_result const result = bundle.run({"-l=Test", "-s=Plain", "-p=src"}, options);
    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.out), QString::fromUtf8(done + invalid_file(large_file) +
                                                              "2 files was found, 2 files was revised, 1 file was changed.\n"));
    QVERIFY(temporary_bundle::contents_of(large_file) == large);
    QCOMPARE(temporary_bundle::contents_of(small_file), tidy_line);
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
    // The failed write left no record: without the limit the next run revises that file.
    QCOMPARE(bundle.run({"-l=Test", "-s=Plain", "-p=src"}).out,
             done + "2 files was found, 1 file was revised, 1 file was changed.\n");
    QVERIFY(temporary_bundle::contents_of(large_file) == tidy_line.repeated(4000));
}

void test_runs_under_fault::files_that_vanish_or_become_unreadable_are_reported_and_the_run_goes_on() {
    installed_bundle bundle;
    source_tree const tree(bundle, 12);
    QProcess::execute("chown", {"-R", "65534:65534", bundle.work_directory() + "/src"});  // the user's files
    running_program program(bundle, tree.arguments(), 150, as_nobody());
    QVERIFY(program.wait_until_plugin_was_asked_about(2));
    QString const vanished = tree.files[5], unreadable = tree.files[6], now_directory = tree.files[7];
    QVERIFY(QFile::remove(vanished));
    QVERIFY(QFile::setPermissions(unreadable, QFile::WriteOwner));
    QVERIFY(QFile::remove(now_directory) && QDir().mkdir(now_directory));
    run_result const result = program.finish();
    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(done + invalid_file(vanished) + invalid_file(unreadable) + invalid_file(now_directory) +
                               "12 files was found, 9 files was revised, 9 files was changed.\n"));
    QVERIFY(QFile::setPermissions(unreadable, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(temporary_bundle::contents_of(unreadable), tree.untidy(6));
    for (int index : {0, 1, 2, 3, 4, 8, 9, 10, 11})
        QCOMPARE(temporary_bundle::contents_of(tree.files[index]), tree.tidy(index));
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

void test_runs_under_fault::a_file_edited_or_removed_while_the_plugin_has_it_is_not_written() {
    installed_bundle bundle;
    source_tree const tree(bundle, 6);
    QString const edited = tree.files[1], removed = tree.files[2];
    running_program program(bundle, tree.arguments(), 400);
    QVERIFY(program.wait_until_plugin_was_asked_about(2));
    {
        QFile file(edited);
        QVERIFY(file.open(QIODevice::Append));
        file.write("edited  meanwhile\n");
    }
    QVERIFY(program.wait_until_plugin_was_asked_about(3));
    QVERIFY(QFile::remove(removed));
    run_result const result = program.finish();
    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.out), QString::fromUtf8(done + edited_meanwhile(edited) + invalid_file(removed) +
                                                              "6 files was found, 6 files was revised, 4 files was changed.\n"));
    QCOMPARE(temporary_bundle::contents_of(edited), tree.untidy(1) + "edited  meanwhile\n");
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
    // No record hides the edit: the next run revises that file and only that one.
    QCOMPARE(bundle.run({"-l=Test", "-s=Plain", "-p=src"}).out,
             done + "5 files was found, 1 file was revised, 1 file was changed.\n");
    QCOMPARE(temporary_bundle::contents_of(edited), tree.tidy(1) + "edited meanwhile\n");
}

// The run waits just before it replaces the revised file (the engine's test pause, a FIFO), and
// the file is saved then, by an editor that writes in place or one that renames a new file over it.
void test_runs_under_fault::an_edit_just_before_the_replacement_is_kept_data() {
    QTest::addColumn<QString>("edit");
    QTest::newRow("appended in place") << "append";
    QTest::newRow("saved by a rename") << "rename";
    QTest::newRow("saved with the same bytes by a rename") << "same";
    QTest::newRow("no edit") << "none";
}

void test_runs_under_fault::an_edit_just_before_the_replacement_is_kept() {
    QFETCH(QString, edit);
    installed_bundle bundle;
    source_tree const tree(bundle, 1);
    QString const file = tree.files[0];
    QByteArray const fifo = QFile::encodeName(bundle.home() + "/pause");
    QVERIFY(::mkfifo(fifo.constData(), 0600) == 0);
    run_options options;
    options.extra_environment.insert("STYLE_TARNEL_PAUSE_BEFORE_REPLACING", QString::fromUtf8(fifo));
    QProcess program;
    bundle.start(program, tree.arguments(), options);
    QVERIFY(program.waitForStarted());
    program.closeWriteChannel();
    // Opening the FIFO for writing succeeds once the run waits at it.
    int paused = -1;
    while ((paused = ::open(fifo.constData(), O_WRONLY | O_NONBLOCK)) < 0)
        QVERIFY2(!program.waitForFinished(5), "the run ended without pausing");
    QByteArray const saved = tree.untidy(0) + "saved  meanwhile\n";
    if (edit == "append") {
        QFile opened(file);
        QVERIFY(opened.open(QIODevice::Append));
        opened.write("saved  meanwhile\n");
    } else if (edit != "none") {
        QString const beside = bundle.write_file("src/.f01.tst.editor", edit == "same" ? tree.untidy(0) : saved);
        QVERIFY(::rename(QFile::encodeName(beside).constData(), QFile::encodeName(file).constData()) == 0);
    }
    ::close(paused);
    run_result const result = result_of_finished(program, 60000);
    // An edited file is the run's only file, and it is not revised.
    QCOMPARE(result.status, edit == "none" ? 0 : 1);
    QByteArray const kept = edit == "append" || edit == "rename" ? saved : tree.untidy(0);
    if (edit == "none") {
        QCOMPARE(result.out, done + "1 file was found, 1 file was revised, 1 file was changed.\n");
        QCOMPARE(temporary_bundle::contents_of(file), tree.tidy(0));
    } else {
        // Also the same bytes saved again: the file is another file now, kept as it is.
        QCOMPARE(QString::fromUtf8(result.out),
                 QString::fromUtf8(done + edited_meanwhile(file) + "1 file was found, 1 file was revised, no files was changed.\n"));
        QCOMPARE(temporary_bundle::contents_of(file), kept);
        // No record hides the edit: the next run revises it.
        QCOMPARE(bundle.run(tree.arguments()).out, done + "1 file was found, 1 file was revised, 1 file was changed.\n");
        QCOMPARE(temporary_bundle::contents_of(file), QByteArray(kept).replace("  ", " "));
    }
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

void test_runs_under_fault::an_addon_or_plugin_replaced_during_a_run_data() {
    QTest::addColumn<QString>("replacement");
    QTest::newRow("addon") << "Plain[Test].style";
    QTest::newRow("plugin") << "libtest-language-plugin.so";
}

void test_runs_under_fault::an_addon_or_plugin_replaced_during_a_run() {
    QFETCH(QString, replacement);
    installed_bundle bundle;
    source_tree const tree(bundle, 6);
    // A valid addon of the same style with another form, or the twin plugin under the test
    // plugin's name: either replaces, through the store, what the run has open.
    QString const new_file = bundle.home() + "/" + replacement;
    if (replacement.endsWith(".so"))
        QVERIFY(QFile::copy(built::twin_language_plugin(), new_file));
    else
        bundle.write_file("../home/" + replacement, addon_text("Plain", "Test", "begin  SOME  end"));
    running_program program(bundle, {"-l=Test", "-s=Plain", "-p=src"}, 200);
    QVERIFY(program.wait_until_plugin_was_asked_about(2));
    QCOMPARE(bundle.run({"--import=" + new_file}).status, 0);
    run_result const result = program.finish();
    QCOMPARE(result.crashed, false);
    QCOMPARE(result.out, done + "6 files was found, 6 files was revised, 6 files was changed.\n");
    QCOMPARE(tree.revised(), 6);
    QString const installed = (replacement.endsWith(".so") ? bundle.plugins_directory() : bundle.addons_directory());
    QCOMPARE(temporary_bundle::contents_of(installed + "/" + replacement), temporary_bundle::contents_of(new_file));
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

QTEST_GUILESS_MAIN(test_runs_under_fault)
#include "test_runs_under_fault.moc"
