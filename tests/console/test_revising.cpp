// Revising through the real executable: what it checks first, what it prints where, and what
// is on disk afterwards.
#include "tests/console/helpers/installed_bundle.h"

namespace {

QByteArray const listing_hint = " Please run app with '--ls' flag to see what supported.\n";
QByteArray const done_line = "It's done." + QByteArray(25, ' ') + "\n";

// A tree with one file to change, one already tidy, and one of another language.
struct tree_bundle : installed_bundle {
    tree_bundle() {
        untidy = write_file("src/a.tst", "a  b\n");
        tidy = write_file("src/sub/b.test", "tidy\n");
        foreign = write_file("src/c.txt", "c  c\n");
    }
    QByteArray untidy_now() const { return contents_of(untidy); }
    QString untidy, tidy, foreign;
};

}  // namespace

class test_revising : public QObject {
    Q_OBJECT
private slots:
    void revises_a_tree_and_reports_on_standard_output();
    void skips_files_unchanged_since_their_revision();
    void a_forced_run_forgets_records_even_when_it_then_fails();
    void stops_at_the_first_missing_path_before_revising_anything();
    void refuses_unknown_languages_and_styles();
    void takes_extensions_from_the_command_line();
    void refuses_extensions_that_are_not_letters_and_digits();
    void refuses_a_named_file_of_another_extension();
    void reports_a_file_it_cannot_write();
};

void test_revising::revises_a_tree_and_reports_on_standard_output() {
    tree_bundle bundle;
    run_result const result = bundle.run({"--lang=Test", "--style=Plain", "--path=src"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out, done_line + "2 files was found, 2 files was revised, 1 file was changed.\n");
    QVERIFY(result.err.startsWith("Preparing, please wait...\rRevise... 1 from 2 files\r"));
    QVERIFY(result.err.endsWith("Revise... 2 from 2 files\r"));
    QCOMPARE(bundle.untidy_now(), QByteArray("a b\n"));
    QCOMPARE(temporary_bundle::contents_of(bundle.tidy), QByteArray("tidy\n"));
    QCOMPARE(temporary_bundle::contents_of(bundle.foreign), QByteArray("c  c\n"));
}

void test_revising::skips_files_unchanged_since_their_revision() {
    tree_bundle bundle;
    bundle.run({"-l=Test", "-s=Plain", "-p=src"});
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=src"}), "Preparing, please wait...\r",
                done_line + "2 files was found, no files was revised.\n", 0);
    // Another style makes every file changed again.
    run_result const other_style = bundle.run({"-l=Test", "-s=Wide", "-p=src"});
    QCOMPARE(other_style.out, done_line + "2 files was found, 2 files was revised, no files was changed.\n");
}

void test_revising::a_forced_run_forgets_records_even_when_it_then_fails() {
    tree_bundle bundle;
    bundle.run({"-l=Test", "-s=Plain", "-p=src"});
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Nope", "-p=src", "-f"}),
                "There is no style 'Nope' for language 'Test'." + listing_hint, "", 1);
    run_result const again = bundle.run({"-l=Test", "-s=Plain", "-p=src"});
    QCOMPARE(again.out, done_line + "2 files was found, 2 files was revised, no files was changed.\n");
    run_result const forced = bundle.run({"-l=Test", "-s=Plain", "-p=src", "--force=yes"});
    QCOMPARE(forced.out, done_line + "2 files was found, 2 files was revised, no files was changed.\n");
}

void test_revising::stops_at_the_first_missing_path_before_revising_anything() {
    tree_bundle bundle;
    // Words are taken in byte order: "-p=missing" before "-p=src", "-p=src" before "-p=zz".
    for (auto const& missing : {"missing", "zz"}) {
        COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=src", QString("-p=") + missing}),
                    "No such file or directory '" + bundle.work_directory().toUtf8() + "/" + missing +
                        "', please correct path.\n",
                    "", 1);
        QCOMPARE(bundle.untidy_now(), QByteArray("a  b\n"));
    }
    // A leading "~" is the home directory.
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=~/nothing"}),
                "No such file or directory '" + bundle.home().toUtf8() + "/nothing', please correct path.\n", "", 1);
}

void test_revising::refuses_unknown_languages_and_styles() {
    tree_bundle bundle;
    COMPARE_RUN(bundle.run({"-l=Java", "-s=Plain", "-p=src"}), "There is no language 'Java'." + listing_hint, "", 1);
    COMPARE_RUN(bundle.run({"-l=Other", "-s=Wide", "-p=src"}),
                "There is no style 'Wide' for language 'Other'." + listing_hint, "", 1);
    QCOMPARE(bundle.untidy_now(), QByteArray("a  b\n"));
}

void test_revising::takes_extensions_from_the_command_line() {
    tree_bundle bundle;
    run_result const only_txt = bundle.run({"-l=Test", "-s=Plain", "-p=src", "--exts=txt"});
    QCOMPARE(only_txt.out, done_line + "1 file was found, 1 file was revised, 1 file was changed.\n");
    QCOMPARE(temporary_bundle::contents_of(bundle.foreign), QByteArray("c c\n"));
    QCOMPARE(bundle.untidy_now(), QByteArray("a  b\n"));
    run_result const two = bundle.run({"-l=Test", "-s=Plain", "-p=src", "--exts=tst,test"});
    QCOMPARE(two.out, done_line + "2 files was found, 2 files was revised, 1 file was changed.\n");
}

void test_revising::refuses_extensions_that_are_not_letters_and_digits() {
    tree_bundle bundle;
    for (auto const& extensions : {"--exts=.tst", "--exts=t-s", "--exts=c++"})
        COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=src", extensions}),
                    "Filename extension may contain English letters and digits only.\n", "", 1);
    QCOMPARE(bundle.untidy_now(), QByteArray("a  b\n"));
}

void test_revising::refuses_a_named_file_of_another_extension() {
    tree_bundle bundle;
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "-p=src/c.txt", "-p=src/a.tst"}),
                "Preparing, please wait...\r",
                "Sorry, but you can specify only paths to files with extensions 'tst,test,', please correct it.\n", 1);
    QCOMPARE(bundle.untidy_now(), QByteArray("a  b\n"));
    QCOMPARE(temporary_bundle::contents_of(bundle.foreign), QByteArray("c  c\n"));
}

void test_revising::reports_a_file_it_cannot_write() {
    tree_bundle bundle;
    // Everything open to the unprivileged user but the one file.
    auto const all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                     QFile::WriteOther | QFile::ExeOther;
    QFile::setPermissions(bundle.work_directory() + "/src", all);
    QFile::setPermissions(bundle.work_directory() + "/src/sub", all);
    QFile::setPermissions(bundle.tidy, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther);
    QFile::setPermissions(bundle.untidy, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    run_options as_nobody;
    as_nobody.unprivileged = true;
    run_result const result = bundle.run({"-l=Test", "-s=Plain", "-p=src"}, as_nobody);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(done_line + "Sorry, I can't revise file '" + bundle.untidy.toUtf8() +
                               "'. If this file exists - please check read/write permissions.\n\n"
                               "2 files was found, 1 file was revised, no files was changed.\n"));
    QCOMPARE(bundle.untidy_now(), QByteArray("a  b\n"));
}

QTEST_GUILESS_MAIN(test_revising)
#include "test_revising.moc"
