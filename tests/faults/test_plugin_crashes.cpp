// A plugin that crashes on one source (a write through a null pointer, abort(), a stack overflow),
// as a faulty third party's may: the run reports every file, keeps the records it earned and stops
// handing files to the plugin; the next run skips the file that crashed it until it changes and
// revises the others; a check exits 2; standard input gives the text back and exits 2.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QFile>
#include <QtTest>

namespace {

QByteArray const done = "It's done." + QByteArray(25, ' ') + "\n";

QByteArray crash_on(QString const& path) {
    return "Sorry, I can't revise file '" + path.toUtf8() +
           "', because plugin 'libtest-language-plugin.so' crashed on it.\n\n";
}

QByteArray left_after_crash(QString const& path) {
    return "Sorry, I didn't revise file '" + path.toUtf8() +
           "', because plugin 'libtest-language-plugin.so' crashed on an earlier file.\n\n";
}

// The crashing build of the test plugin in the place of the test plugin; four sources, the second
// of which crashes it.
struct crash_bundle : installed_bundle {
    crash_bundle(QString const& plugin, QByteArray const& marker) {
        QFile::remove(plugins_directory() + "/libtest-language-plugin.so");
        add_plugin(built::test_plugin(plugin), "libtest-language-plugin.so");
        first = write_file("src/f1.tst", "a  b");
        crashing = write_file("src/f2.tst", "x  " + marker);
        third = write_file("src/f3.tst", "c  d");
        fourth = write_file("src/f4.tst", "e f");
    }
    QString first, crashing, third, fourth;
};

}  // namespace

class test_plugin_crashes : public QObject {
    Q_OBJECT
private slots:
    void the_run_survives_a_crash_on_one_file_data();
    void the_run_survives_a_crash_on_one_file();
    void a_run_that_dies_keeps_its_records_and_the_file_waits();
};

void test_plugin_crashes::the_run_survives_a_crash_on_one_file_data() {
    QTest::addColumn<QByteArray>("marker");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<int>("jobs");
    for (char const* marker : {"CRASH_NULL", "CRASH_ABORT", "CRASH_RECURSION"}) {
        QTest::addRow("%s, one worker", marker) << QByteArray(marker) << "libcrashing-language-plugin.so" << 1;
        QTest::addRow("%s, three workers", marker)
            << QByteArray(marker) << "libcrashing-reentrant-language-plugin.so" << 3;
    }
}

void test_plugin_crashes::the_run_survives_a_crash_on_one_file() {
    QFETCH(QByteArray, marker);
    QFETCH(QString, plugin);
    QFETCH(int, jobs);
    crash_bundle bundle(plugin, marker);
    run_options options;
    options.extra_environment.insert("STYLE_TARNEL_JOBS", QString::number(jobs));
    // Named one by one: the command line takes them in this order.
    QStringList const words{"-l=Test", "-s=Plain", "-p=src/f1.tst", "-p=src/f2.tst", "-p=src/f3.tst", "-p=src/f4.tst"};

    // Standard input: the text back, unchanged, and status 2.
    run_options input = options;
    input.input = "x  " + marker + "\n";
    run_result const text = bundle.run({"-l=Test", "-s=Plain", "-p=-"}, input);
    QCOMPARE(text.crashed, false);
    QCOMPARE(text.out, input.input);
    QCOMPARE(text.status, 2);
    QVERIFY(text.err.contains("crashed on it"));

    // A check names the file and exits 2.
    run_result const check = bundle.run(words + QStringList{"--check"}, options);
    QCOMPARE(check.crashed, false);
    QCOMPARE(check.status, 2);
    QVERIFY(check.out.contains(crash_on(bundle.crashing)));

    // The run reports every file and keeps the records it earned.
    run_result const run = bundle.run(words, options);
    QCOMPARE(run.crashed, false);
    // A run in which every file failed exits 1: with several workers, the crash may leave every
    // other file unrevised.
    bool const some_revised = bundle.contents_of(bundle.first) == "a b" || bundle.contents_of(bundle.third) == "c d" ||
                              bundle.contents_of(bundle.fourth) == "e f";
    QCOMPARE(run.status, some_revised ? 0 : 1);
    QVERIFY(jobs > 1 || some_revised);
    QVERIFY2(run.out.contains(crash_on(bundle.crashing)), run.out.constData());
    QCOMPARE(bundle.contents_of(bundle.crashing), "x  " + marker);
    if (jobs == 1) {
        QCOMPARE(bundle.contents_of(bundle.first), QByteArray("a b"));
        QCOMPARE(QString::fromUtf8(run.out),
                 QString::fromUtf8(done + crash_on(bundle.crashing) + left_after_crash(bundle.third) +
                                   left_after_crash(bundle.fourth) +
                                   "4 files was found, 2 files was revised, 1 file was changed.\n"));
    } else {
        // The workers finish the files the plugin holds; every other file, also one taken before
        // the crashing one but not yet handed to the plugin, is revised or named.
        QVERIFY(run.out.contains("4 files was found, "));
        QVERIFY(bundle.contents_of(bundle.first) == "a b" || run.out.contains(left_after_crash(bundle.first)));
        QVERIFY(bundle.contents_of(bundle.third) == "c d" || run.out.contains(left_after_crash(bundle.third)));
    }

    // The next run skips the file that crashed the plugin and revises the others.
    run_result const next = bundle.run(words, options);
    QCOMPARE(next.crashed, false);
    QVERIFY2(!next.out.contains("crashed"), next.out.constData());
    QCOMPARE(bundle.contents_of(bundle.first), QByteArray("a b"));
    QCOMPARE(bundle.contents_of(bundle.third), QByteArray("c d"));
    QCOMPARE(bundle.contents_of(bundle.fourth), QByteArray("e f"));
    QCOMPARE(bundle.contents_of(bundle.crashing), "x  " + marker);
    QCOMPARE(bundle.run(words, options).out, done + "4 files was found, no files was revised.\n");
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

// SIGKILL from the plugin: nothing survives it in the process. The records of the files revised
// before it (not yet synced to the store) are kept, and the file it died on waits until it
// changes, named in the next run's report.
void test_plugin_crashes::a_run_that_dies_keeps_its_records_and_the_file_waits() {
    crash_bundle bundle("libcrashing-language-plugin.so", "CRASH_KILL");
    QStringList const words{"-l=Test", "-s=Plain", "-p=src/f1.tst", "-p=src/f2.tst", "-p=src/f3.tst", "-p=src/f4.tst"};
    run_result const killed = bundle.run(words);
    QCOMPARE(killed.crashed, true);
    QCOMPARE(bundle.contents_of(bundle.first), QByteArray("a b"));
    run_result const next = bundle.run(words);
    QCOMPARE(next.crashed, false);
    QCOMPARE(QString::fromUtf8(next.out),
             QString::fromUtf8(done + "Sorry, I can't revise file '" + bundle.crashing.toUtf8() +
                               "', because an earlier run ended while the plugin had it. It waits until it changes.\n\n"
                               "4 files was found, 2 files was revised, 1 file was changed.\n"));
    QCOMPARE(bundle.contents_of(bundle.third), QByteArray("c d"));
    QCOMPARE(bundle.run(words).out, done + "4 files was found, no files was revised.\n");
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

QTEST_GUILESS_MAIN(test_plugin_crashes)
#include "test_plugin_crashes.moc"
