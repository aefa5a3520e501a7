// The bundle itself under fault: styles and plugins directories the user cannot write, and an
// addon or a plugin replaced by an import while a run is going. Revising never needs to write
// there; store commands are refused with their message and leave the directories as they were;
// a run goes on with the addon text and plugin it started with.
#include "tests/console/helpers/installed_bundle.h"
#include "tests/faults/helpers/report_texts.h"
#include "tests/faults/helpers/running_program.h"
#include "tests/faults/helpers/source_tree.h"

#include <QFile>

namespace {


// File names and contents of everything in `directory`.
QMap<QString, QByteArray> snapshot_of(QString const& directory) {
    QMap<QString, QByteArray> files;
    for (auto const& name : QDir(directory).entryList(QDir::Files | QDir::Hidden))
        files[name] = temporary_bundle::contents_of(directory + "/" + name);
    return files;
}

}  // namespace

class test_bundle_under_change : public QObject {
    Q_OBJECT
private slots:
    void read_only_styles_and_plugins_directories_data();
    void read_only_styles_and_plugins_directories();
    void an_addon_or_plugin_replaced_during_a_run_data();
    void an_addon_or_plugin_replaced_during_a_run();
};

void test_bundle_under_change::read_only_styles_and_plugins_directories_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<int>("status");
    QTest::newRow("revising needs no write there")
        << QStringList{"-l=Test", "-s=Plain", "-p=src"} << QByteArray("Preparing, please wait...\rRevise... 1 from 1 files\r") << 0;
    QTest::newRow("importing a style")
        << QStringList{"--import=new[Test].style"} << QByteArray("I cannot import style '%1/new[Test].style', it has invalid format. For more info please read https://style-tarnel.org/user-guide/style-addon-by-hand.\n") << 1;
    QTest::newRow("importing a plugin")
        << QStringList{"--import=libnew-language-plugin.so"} << QByteArray("I cannot import language '%1/libnew-language-plugin.so'.\n") << 1;
    QTest::newRow("deleting a style")
        << QStringList{"-l=Test", "-s=Wide", "--delete"} << QByteArray("I cannot delete style 'Wide'.\n") << 1;
    QTest::newRow("deleting a language")
        << QStringList{"-l=Other", "--delete"} << QByteArray("Sorry, I cannot delete language 'Other'.\n") << 1;
    QTest::newRow("renaming a style")
        << QStringList{"-l=Test", "-s=Wide", "--rename=Broad"} << QByteArray("I cannot rename style 'Wide'.\n") << 1;
}

void test_bundle_under_change::read_only_styles_and_plugins_directories() {
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    QFETCH(int, status);
    installed_bundle bundle;
    bundle.write_file("new[Test].style", addon_text("new", "Test"));
    QFile::copy(built::twin_language_plugin(), bundle.work_directory() + "/libnew-language-plugin.so");
    QString const source = bundle.write_file("src/a.tst", source_tree::untidy_line);
    give_to_unprivileged_user(bundle.work_directory());
    auto const addons = snapshot_of(bundle.addons_directory());
    auto const plugins = snapshot_of(bundle.plugins_directory());
    run_options options;
    options.unprivileged = true;  // the bundle stays root's: its directories are read-only to the run

    run_result const result = bundle.run(arguments, options);
    QCOMPARE(QString::fromUtf8(result.err), QString::fromUtf8(message).replace("%1", bundle.work_directory()));
    QCOMPARE(result.status, status);
    QVERIFY(snapshot_of(bundle.addons_directory()) == addons);
    QVERIFY(snapshot_of(bundle.plugins_directory()) == plugins);
    if (status == 0)
        QCOMPARE(temporary_bundle::contents_of(source), source_tree::tidy_line);
}

void test_bundle_under_change::an_addon_or_plugin_replaced_during_a_run_data() {
    QTest::addColumn<QString>("replacement");
    QTest::newRow("addon") << "Plain[Test].style";
    QTest::newRow("plugin") << "libtest-language-plugin.so";
}

void test_bundle_under_change::an_addon_or_plugin_replaced_during_a_run() {
    QFETCH(QString, replacement);
    installed_bundle bundle;
    source_tree const tree(bundle, 6);
    // A valid addon of the same style with another form; the twin plugin under the test plugin's
    // name: both replace, through the store, what the run has open.
    QDir().mkpath(bundle.home() + "/new");
    QString const new_file = bundle.home() + "/new/" + replacement;
    if (replacement.endsWith(".so")) {
        QVERIFY(QFile::copy(built::twin_language_plugin(), new_file));
    } else {
        QFile file(new_file);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(addon_text("Plain", "Test") + "\nS_NAME=function\nS_BEG\ntype name() {SOME}\nS_END\n");
    }

    running_program program(bundle, {"-l=Test", "-s=Plain", "-p=src"}, 200);
    QVERIFY(program.wait_until_plugin_was_asked_about(2));
    run_result const import = bundle.run({"--import=" + new_file});
    QCOMPARE(import.status, 0);
    run_result const result = program.finish();

    QCOMPARE(result.crashed, false);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out, report::done_line + "6 files was found, 6 files was revised, 6 files was changed.\n");
    int revised = 0;
    QVERIFY(tree.each_file_is_whole(revised));
    QCOMPARE(revised, 6);
    QVERIFY(temporary_bundle::contents_of(bundle.plugins_directory() + "/" + replacement) ==
                temporary_bundle::contents_of(new_file) ||
            temporary_bundle::contents_of(bundle.addons_directory() + "/" + replacement) ==
                temporary_bundle::contents_of(new_file));
    QCOMPARE(temporary_files_below(bundle.root()), QStringList());
}

QTEST_GUILESS_MAIN(test_bundle_under_change)
#include "test_bundle_under_change.moc"
