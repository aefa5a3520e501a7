// SIGINT and SIGTERM during a revision of many files: the run stops after the file it is on,
// saves its records, says so in its report and exits with 128 + the signal; a second signal kills
// at once. Either way every file is whole and no temporary file is left.
#include "tests/console/helpers/installed_bundle.h"
#include "tests/faults/helpers/report_texts.h"
#include "tests/faults/helpers/running_program.h"
#include "tests/faults/helpers/source_tree.h"

#include <csignal>

namespace {

int const files = 12;
int const delay_ms = 300;

}  // namespace

class test_interruption : public QObject {
    Q_OBJECT
private slots:
    void a_signal_stops_the_run_after_the_current_file_data();
    void a_signal_stops_the_run_after_the_current_file();
    void a_second_signal_kills_at_once_and_leaves_files_whole();
};

void test_interruption::a_signal_stops_the_run_after_the_current_file_data() {
    QTest::addColumn<int>("signal_number");
    QTest::addColumn<int>("status");
    QTest::newRow("SIGINT") << int(SIGINT) << 130;
    QTest::newRow("SIGTERM") << int(SIGTERM) << 143;
}

void test_interruption::a_signal_stops_the_run_after_the_current_file() {
    QFETCH(int, signal_number);
    QFETCH(int, status);
    installed_bundle bundle;
    source_tree const tree(bundle, files);
    QStringList const arguments{"--lang=Test", "--style=Plain", "--path=src"};

    running_program program(bundle, arguments, delay_ms);
    QVERIFY(program.wait_until_plugin_was_asked_about(3));
    program.send(signal_number);
    run_result const result = program.finish();
    QCOMPARE(result.crashed, false);
    QCOMPARE(result.status, status);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(report::done_line + "\nRevision was interrupted by user!\n\n" +
                               "12 files was found, 3 files was revised, 3 files was changed.\n"));
    QVERIFY(result.err.endsWith("Revise... 3 from 12 files\r"));
    int revised = 0;
    QVERIFY(tree.each_file_is_whole(revised));
    QCOMPARE(revised, 3);
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());

    // The records of the three revised files were saved: the next run takes only the others.
    run_result const rest = bundle.run(arguments);
    QCOMPARE(rest.status, 0);
    QCOMPARE(rest.out, report::done_line + "12 files was found, 9 files was revised, 9 files was changed.\n");
    QVERIFY(tree.each_file_is_whole(revised));
    QCOMPARE(revised, files);
}

void test_interruption::a_second_signal_kills_at_once_and_leaves_files_whole() {
    installed_bundle bundle;
    source_tree const tree(bundle, files);
    running_program program(bundle, {"--lang=Test", "--style=Plain", "--path=src"}, delay_ms);
    QVERIFY(program.wait_until_plugin_was_asked_about(3));
    program.send(SIGINT);
    program.send(SIGTERM);
    run_result const result = program.finish();
    QCOMPARE(result.crashed, true);
    QCOMPARE(program.files_asked_about(), 3);
    QVERIFY(!result.out.contains("It's done."));
    int revised = 0;
    QVERIFY(tree.each_file_is_whole(revised));
    QVERIFY(revised <= 3);
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

QTEST_GUILESS_MAIN(test_interruption)
#include "test_interruption.moc"
