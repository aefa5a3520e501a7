// Plugins are code from outside: one that throws from revise() or answers nothing for a file with
// content must not take the host down nor empty the file. Such a file is reported with the
// syntax-error message, left as it was, and the run goes on.
#include "tests/console/helpers/installed_bundle.h"
#include "tests/faults/helpers/report_texts.h"

class test_faulty_plugins : public QObject {
    Q_OBJECT
private slots:
    void a_throwing_or_emptying_plugin_leaves_the_file_and_the_run_goes_on();
    void a_plugin_that_throws_when_asked_counts_as_no_plugin();
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

// Every question but revise(): its language, keywords, extensions and forms.
void test_faulty_plugins::a_plugin_that_throws_when_asked_counts_as_no_plugin() {
    installed_bundle bundle;
    run_options throwing;
    throwing.extra_environment.insert("TEST_PLUGIN_THROWING", "other-language-plugin");
    run_result const listing = bundle.run({"--ls"}, throwing);
    QCOMPARE(listing.crashed, false);
    QCOMPARE(listing.status, 0);
    QVERIFY(listing.err.contains(" Test .. Plain\n"));
    QVERIFY(!listing.err.contains("Other"));

    QString const file = bundle.write_file("src/a.tst", "a  b\n");
    run_result const revision = bundle.run({"-l=Test", "-s=Plain", "-p=src"}, throwing);
    QCOMPARE(revision.status, 0);
    QCOMPARE(temporary_bundle::contents_of(file), QByteArray("a b\n"));
    run_result const refused = bundle.run({"-l=Other", "-s=Plain", "-p=src"}, throwing);
    QCOMPARE(refused.crashed, false);
    QCOMPARE(refused.status, 1);

    // Importing it fails and installs nothing.
    QString const copy = bundle.work_directory() + "/libother-language-plugin.so";
    QVERIFY(QFile::copy(built::other_language_plugin(), copy));
    QVERIFY(QFile::remove(bundle.plugins_directory() + "/libother-language-plugin.so"));
    QStringList const before = bundle.installed_plugins();
    COMPARE_RUN(bundle.run({"--import=" + copy}, throwing), "I cannot import language '" + copy.toUtf8() + "'.\n", "", 1);
    QCOMPARE(bundle.installed_plugins(), before);
}

QTEST_GUILESS_MAIN(test_faulty_plugins)
#include "test_faulty_plugins.moc"
