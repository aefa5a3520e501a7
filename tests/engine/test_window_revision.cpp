// The windowed revision run: the callbacks in their order, all from the worker thread, the
// report it finishes with, and interruption through the stop flag.
#include "tests/engine/helpers/engine_fixture.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QTemporaryDir>

using namespace engine_test;

class test_window_revision : public QObject {
    Q_OBJECT
private slots:
    void init();
    void reports_through_the_callbacks_from_its_own_thread();
    void ends_a_failed_preparation_with_its_message_only();
    void stops_after_the_file_it_was_interrupted_at();
    void reads_the_stop_request_before_unchanged_files_too();

private:
    QString source(QString const& name) const { return QDir(sources->path()).filePath(name); }
    std::unique_ptr<QTemporaryDir> sources;
};

void test_window_revision::init() {
    clear_bundle();
    install_test_language();
    sources = std::make_unique<QTemporaryDir>();
}

void test_window_revision::reports_through_the_callbacks_from_its_own_thread() {
    write_file(source("a.tst"), "x  y");
    write_file(source("b.tst"), "z");
    write_file(source("c.tst"), "z");
    revise_on_command_line(task_for({source("c.tst")}));  // c is then unchanged: no progress step

    window_run const run = revise_in_window(task_for({source("a.tst"), source("b.tst"), source("c.tst")}));
    QVERIFY(run.finished);
    QCOMPARE(run.events, (std::vector<std::string>{
                             "status Preparing, please wait...", "maximum 3", "status 1 from 3 files",
                             "value 1", "status 2 from 3 files", "value 2", "finished"}));
    QCOMPARE(run.report, std::string("3 files was found, 2 files was revised, 1 file was changed."));
    QVERIFY(!run.called_from_caller_thread);
    QCOMPARE(contents_of(source("a.tst")), QByteArray("x y"));
    QCOMPARE(plugin_log().last(), QString("end_of_revision"));
}

void test_window_revision::ends_a_failed_preparation_with_its_message_only() {
    write_file(source("a.tst"), "x  y");
    window_run const run = revise_in_window(task_for({source("a.tst")}, "tst", "Compact", "Missing"));
    QVERIFY(run.finished);
    QCOMPARE(run.events, (std::vector<std::string>{"status Preparing, please wait...", "finished"}));
    QCOMPARE(run.report, std::string("Sorry, I can't revise, something wrong with plugin 'Missing'.\n\n"));
    QCOMPARE(contents_of(source("a.tst")), QByteArray("x  y"));
}

void test_window_revision::stops_after_the_file_it_was_interrupted_at() {
    for (auto const& name : {"a.tst", "b.tst", "c.tst"})
        write_file(source(name), "x  y");
    window_run const run = revise_in_window(
        task_for({source("a.tst"), source("b.tst"), source("c.tst")}),
        [](int value, std::atomic<bool>& stop) { stop = stop || value == 1; });
    QVERIFY(run.finished);
    QCOMPARE(run.report, std::string("\nRevision was interrupted by user!\n\n"
                                     "3 files was found, 1 file was revised, 1 file was changed."));
    QCOMPARE(run.events, (std::vector<std::string>{"status Preparing, please wait...", "maximum 3",
                                                   "status 1 from 3 files", "value 1", "finished"}));
    QCOMPARE(contents_of(source("a.tst")), QByteArray("x y"));
    QCOMPARE(contents_of(source("b.tst")), QByteArray("x  y"));
    QCOMPARE(contents_of(source("c.tst")), QByteArray("x  y"));
    QCOMPARE(plugin_log(), (QStringList{"revise - - 4", "end_of_revision"}));
}

// Files skipped as unchanged reach no progress step; Stop must still end the run before them.
void test_window_revision::reads_the_stop_request_before_unchanged_files_too() {
    for (auto const& name : {"a.tst", "b.tst"})
        write_file(source(name), "x y");
    write_file(source("c.tst"), "x  y");
    revise_on_command_line(task_for({source("a.tst"), source("b.tst")}));
    window_run const run =
        revise_in_window(task_for({source("a.tst"), source("b.tst"), source("c.tst")}), {}, true);
    QVERIFY(run.finished);
    QCOMPARE(run.report, std::string("\nRevision was interrupted by user!\n\n"
                                     "3 files was found, no files was revised."));
    QCOMPARE(contents_of(source("c.tst")), QByteArray("x  y"));
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_window_revision)
#include "test_window_revision.moc"
