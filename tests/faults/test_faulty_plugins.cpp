// Plugins are code from outside: one that throws from revise() or answers nothing for a file with
// content must not take the host down nor empty the file. Such a file is reported with the
// syntax-error message, left as it was, and the run goes on.
#include "tests/console/helpers/installed_bundle.h"
#include "tests/faults/helpers/report_texts.h"

class test_faulty_plugins : public QObject {
    Q_OBJECT
private slots:
    void a_throwing_or_emptying_plugin_leaves_the_file_and_the_run_goes_on();
};

void test_faulty_plugins::a_throwing_or_emptying_plugin_leaves_the_file_and_the_run_goes_on() {
    installed_bundle bundle;
    QString const throwing = bundle.write_file("src/a.tst", "THROW  here\n");
    QString const emptied = bundle.write_file("src/b.tst", "EMPTY  here\n");
    QString const fine = bundle.write_file("src/c.tst", "fine  here\n");
    // Files are met in the order of their paths on the command line.
    run_result const result = bundle.run({"-l=Test", "-s=Plain", "-p=" + throwing, "-p=" + emptied, "-p=" + fine});
    QCOMPARE(result.crashed, false);
    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(report::done_line + report::syntax_error_in(throwing) + report::syntax_error_in(emptied) +
                               "3 files was found, 3 files was revised, 1 file was changed.\n"));
    QCOMPARE(temporary_bundle::contents_of(throwing), QByteArray("THROW  here\n"));
    QCOMPARE(temporary_bundle::contents_of(emptied), QByteArray("EMPTY  here\n"));
    QCOMPARE(temporary_bundle::contents_of(fine), QByteArray("fine here\n"));
}

QTEST_GUILESS_MAIN(test_faulty_plugins)
#include "test_faulty_plugins.moc"
