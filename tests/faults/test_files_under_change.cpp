// Source files that fail the run midway: writes cut short by the file-size limit, files that
// vanish, become unreadable or turn into directories while the run goes on, and files edited or
// removed while the plugin holds their text. Each is reported, the run goes on, and no file is
// left truncated, half-written, resurrected or with someone else's edit undone.
#include "tests/console/helpers/installed_bundle.h"
#include "tests/faults/helpers/report_texts.h"
#include "tests/faults/helpers/running_program.h"
#include "tests/faults/helpers/source_tree.h"

#include <QFile>

class test_files_under_change : public QObject {
    Q_OBJECT
private slots:
    void a_write_beyond_the_file_size_limit_leaves_the_file_as_it_was();
    void files_that_vanish_or_become_unreadable_are_reported_and_the_run_goes_on();
    void a_file_edited_or_removed_while_the_plugin_has_it_is_not_written();
};

void test_files_under_change::a_write_beyond_the_file_size_limit_leaves_the_file_as_it_was() {
    installed_bundle bundle;
    QByteArray const large = source_tree::untidy_line.repeated(4000);
    QString const large_file = bundle.write_file("src/large.tst", large);
    QString const small_file = bundle.write_file("src/small.tst", source_tree::untidy_line);
    run_options options;
    options.shell_prefix = "ulimit -f 20;";  // 10 KiB: the source can be read, not rewritten
    run_result const result = bundle.run({"-l=Test", "-s=Plain", "-p=src"}, options);
    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(report::done_line + report::invalid_file(large_file) +
                               "2 files was found, 2 files was revised, 1 file was changed.\n"));
    QVERIFY(temporary_bundle::contents_of(large_file) == large);
    QCOMPARE(temporary_bundle::contents_of(small_file), source_tree::tidy_line);
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

void test_files_under_change::files_that_vanish_or_become_unreadable_are_reported_and_the_run_goes_on() {
    installed_bundle bundle;
    source_tree const tree(bundle, 12);
    give_to_unprivileged_user(tree.directory);
    run_options options;
    options.unprivileged = true;
    running_program program(bundle, QStringList{"-l=Test", "-s=Plain"} + tree.path_arguments(), 150, options);
    QVERIFY(program.wait_until_plugin_was_asked_about(2));
    QString const vanished = tree.files[5], unreadable = tree.files[6], now_directory = tree.files[7];
    QVERIFY(QFile::remove(vanished));
    QVERIFY(QFile::setPermissions(unreadable, QFile::WriteOwner));
    QVERIFY(QFile::remove(now_directory) && QDir().mkdir(now_directory));
    run_result const result = program.finish();

    QCOMPARE(result.status, 0);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(report::done_line + report::invalid_file(vanished) + report::invalid_file(unreadable) +
                               report::invalid_file(now_directory) +
                               "12 files was found, 9 files was revised, 9 files was changed.\n"));
    QVERIFY(!QFileInfo::exists(vanished));
    QVERIFY(QFileInfo(now_directory).isDir());
    QVERIFY(QFile::setPermissions(unreadable, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(temporary_bundle::contents_of(unreadable), tree.untidy(6));
    for (int index : {0, 1, 2, 3, 4, 8, 9, 10, 11})
        QCOMPARE(temporary_bundle::contents_of(tree.files[index]), tree.tidy(index));
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

void test_files_under_change::a_file_edited_or_removed_while_the_plugin_has_it_is_not_written() {
    installed_bundle bundle;
    source_tree const tree(bundle, 6);
    QString const edited = tree.files[1], removed = tree.files[2];
    running_program program(bundle, QStringList{"-l=Test", "-s=Plain"} + tree.path_arguments(), 400);
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
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(report::done_line + report::invalid_file(edited) + report::invalid_file(removed) +
                               "6 files was found, 6 files was revised, 4 files was changed.\n"));
    QCOMPARE(temporary_bundle::contents_of(edited), tree.untidy(1) + "edited  meanwhile\n");
    QVERIFY(!QFileInfo::exists(removed));
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());

    // No record hides the edit: the next run revises that file and only that one.
    run_result const next = bundle.run({"-l=Test", "-s=Plain", "-p=src"});
    QCOMPARE(next.out, report::done_line + "5 files was found, 1 file was revised, 1 file was changed.\n");
    QCOMPARE(temporary_bundle::contents_of(edited), tree.tidy(1) + "edited meanwhile\n");
}

QTEST_GUILESS_MAIN(test_files_under_change)
#include "test_files_under_change.moc"
