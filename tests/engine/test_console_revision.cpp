// The command-line revision run through kernel::start_revise: its exact output on both streams,
// the files on disk before and after, what the plugin was handed, and which files later runs
// skip.
#include "core/kernel.h"
#include "engine/change_records.h"
#include "tests/engine/helpers/engine_fixture.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QTemporaryDir>

#include <chrono>
#include <thread>

using namespace engine_test;

namespace {

std::string const done = "It's done." + std::string(25, ' ') + "\n";
std::string const preparing = "Preparing, please wait...";

}  // namespace

class test_console_revision : public QObject {
    Q_OBJECT
private slots:
    void init();
    void reports_the_run_data();
    void reports_the_run();
    void skips_files_unchanged_since_their_revision();
    void a_saved_addon_makes_every_file_changed_again();
    void forgetting_the_records_forces_a_run();
    void refused_files_wait_until_they_change();
    void an_empty_file_gets_no_record();
    void hands_the_plugin_the_line_ending();
    void does_not_follow_symbolic_links();
    void records_the_style_of_an_addon_in_UTF_16();
    void of_two_plugins_of_a_language_uses_the_first_listed_data();
    void of_two_plugins_of_a_language_uses_the_first_listed();
    void a_file_edited_while_the_plugin_has_it_is_offered_again_data();
    void a_file_edited_while_the_plugin_has_it_is_offered_again();

private:
    QString source(QString const& name) const { return QDir(sources->path()).filePath(name); }
    std::unique_ptr<QTemporaryDir> sources;
};

void test_console_revision::init() {
    clear_bundle();
    install_test_language();
    sources = std::make_unique<QTemporaryDir>();
}

void test_console_revision::reports_the_run_data() {
    QTest::addColumn<QStringList>("files");  // "name=content" below the sources
    QTest::addColumn<QStringList>("named");  // paths given, below the sources ("" = the sources)
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("out");  // "<dir>" stands for the sources directory
    QTest::addColumn<QString>("err");
    QTest::addColumn<QStringList>("after");  // the files afterwards; empty: as before
    QTest::addColumn<int>("revise_calls");

    QString const p = QString::fromStdString(preparing);
    QString const ok = QString::fromStdString(done);
    QTest::newRow("no matching files")
        << QStringList{"a.txt=x  y"} << QStringList{""} << "Test" << "Compact"
        << ok + "No files was found, revision was canceled.\n" << p + "\r" << QStringList{} << 0;
    QTest::newRow("no paths")
        << QStringList{} << QStringList{} << "Test" << "Compact"
        << ok + "No files was found, revision was canceled.\n" << p + "\r" << QStringList{} << 0;
    QTest::newRow("one file revised and changed")
        << QStringList{"a.tst=x  y\n"} << QStringList{""} << "Test" << "Compact"
        << ok + "1 file was found, 1 file was revised, 1 file was changed.\n"
        << p + "\rRevise... 1 from 1 files\r" << QStringList{"a.tst=x y\n"} << 1;
    QTest::newRow("two files revised, none changed")
        << QStringList{"a.tst=x y", "sub/b.tst=z"} << QStringList{""} << "Test" << "Compact"
        << ok + "2 files was found, 2 files was revised, no files was changed.\n"
        << p + "\rRevise... 1 from 2 files\rRevise... 2 from 2 files\r" << QStringList{} << 2;
    QTest::newRow("an empty file is revised without the plugin")
        << QStringList{"a.tst="} << QStringList{""} << "Test" << "Compact"
        << ok + "1 file was found, 1 file was revised, no files was changed.\n" << p + "\r"
        << QStringList{} << 0;
    QTest::newRow("messages in the order files are met")
        << QStringList{"c.tst=SYNTAX_ERROR  c", "a.tst=THROW  a", "b.tst=EMPTY  b", "d.tst=d  d"}
        << QStringList{"c.tst", "a.tst", "b.tst", "d.tst"} << "Test" << "Compact"
        << ok + "Sorry, I can't revise file '<dir>/c.tst', because it contains syntax error, or "
                "language structure that cannot be formatted correctly.\n\n"
                "Sorry, I can't revise file '<dir>/a.tst', because it contains syntax error, or "
                "language structure that cannot be formatted correctly.\n\n"
                "Sorry, I can't revise file '<dir>/b.tst', because it contains syntax error, or "
                "language structure that cannot be formatted correctly.\n\n"
                "4 files was found, 4 files was revised, 1 file was changed.\n"
        << p + "\rRevise... 1 from 4 files\rRevise... 2 from 4 files\rRevise... 3 from 4 files"
               "\rRevise... 4 from 4 files\r"
        << QStringList{"c.tst=SYNTAX_ERROR  c", "a.tst=THROW  a", "b.tst=EMPTY  b", "d.tst=d d"} << 4;
    QTest::newRow("a named file of another extension stops the run first")
        << QStringList{"a.tst=x  y", "b.txt=x  y"} << QStringList{"a.tst", "b.txt"} << "Missing"
        << "Compact"
        << "Sorry, but you can specify only paths to files with extensions 'tst,test', please "
           "correct it.\n"
        << p + "\r" << QStringList{} << 0;
    QTest::newRow("no plugin for the language")
        << QStringList{"a.tst=x  y"} << QStringList{""} << "Missing" << "Compact"
        << "Sorry, I can't revise, something wrong with plugin 'Missing'.\n\n\n" << p + "\r"
        << QStringList{} << 0;
    QTest::newRow("no addon for the style")
        << QStringList{"a.tst=x  y"} << QStringList{""} << "Test" << "Wide"
        << "Sorry, I can't revise, something wrong with addon 'Wide[Test].style'.\n\n\n" << p + "\r"
        << QStringList{} << 0;
    QTest::newRow("an addon with an invalid form")
        << QStringList{"a.tst=x  y"} << QStringList{""} << "Test" << "Broken"
        << "Sorry, format of structure 'block' in the style addon 'Broken[Test].style' is invalid. "
           "Please make sure this addon corresponds to requirements specified at "
           "https://style-tarnel.org/user-guide/style-addon-by-hand.\n\n\n"
        << p + "\r" << QStringList{} << 0;
}

void test_console_revision::reports_the_run() {
    QFETCH(QStringList, files);
    QFETCH(QStringList, named);
    QFETCH(QString, language);
    QFETCH(QString, style);
    QFETCH(QString, out);
    QFETCH(QString, err);
    QFETCH(QStringList, after);
    QFETCH(int, revise_calls);
    install_addon("Broken[Test].style", addon_text("Broken", "Test", "start SOME stop"));
    for (auto const& file : files)
        write_file(source(file.section('=', 0, 0)), file.section('=', 1).toUtf8());
    QStringList paths;
    for (auto const& name : named)
        paths << (name.isEmpty() ? sources->path() : source(name));

    console_output const got = revise_on_command_line(
        task_for(paths, "tst test", style.toStdString(), language.toStdString()));

    QCOMPARE(QString::fromStdString(got.out), QString(out).replace("<dir>", sources->path()));
    QCOMPARE(QString::fromStdString(got.err), err);
    for (auto const& file : after.isEmpty() ? files : after)
        QCOMPARE(contents_of(source(file.section('=', 0, 0))), file.section('=', 1).toUtf8());
    QCOMPARE(plugin_log().filter("revise").size(), revise_calls);
    bool const ran = out.startsWith("It's done.") && !out.contains("No files");
    QCOMPARE(plugin_log().contains("end_of_revision"), ran || out.contains("No files was found"));
}

void test_console_revision::skips_files_unchanged_since_their_revision() {
    for (auto const& name : {"a.tst", "b.tst", "c.tst"})
        write_file(source(name), "x  y");
    revision_task const task = task_for({sources->path()});
    revise_on_command_line(task);

    console_output second = revise_on_command_line(task);
    QCOMPARE(second.out, done + "3 files was found, no files was revised.\n");
    QCOMPARE(second.err, preparing + "\r");
    QCOMPARE(plugin_log().filter("revise").size(), 3);

    set_modification_time(source("b.tst"), now() + 5);
    console_output third = revise_on_command_line(task);
    QCOMPARE(third.out, done + "3 files was found, 1 file was revised, no files was changed.\n");
    QCOMPARE(plugin_log().filter("revise").size(), 4);
}

void test_console_revision::a_saved_addon_makes_every_file_changed_again() {
    for (auto const& name : {"a.tst", "b.tst"})
        write_file(source(name), "x y");
    revision_task const task = task_for({sources->path()});
    revise_on_command_line(task);

    QString const addon = install_addon("Compact[Test].style", addon_text());
    set_modification_time(addon, now() + 5);
    QCOMPARE(revise_on_command_line(task).out,
             done + "2 files was found, 2 files was revised, no files was changed.\n");
    QCOMPARE(revise_on_command_line(task).out, done + "2 files was found, no files was revised.\n");
}

void test_console_revision::forgetting_the_records_forces_a_run() {
    write_file(source("a/x.tst"), "x y");
    write_file(source("b/y.tst"), "x y");
    revision_task const task = task_for({source("a"), source("b")});
    revise_on_command_line(task);
    remove_info_about_changes_of(*engine_test::records_store()).this_path(source("a"));
    QCOMPARE(revise_on_command_line(task).out,
             done + "2 files was found, 1 file was revised, no files was changed.\n");
}

void test_console_revision::refused_files_wait_until_they_change() {
    write_file(source("a.tst"), "SYNTAX_ERROR  a");
    write_file(source("b.tst"), "THROW  b");
    revision_task const task = task_for({sources->path()});
    revise_on_command_line(task);
    QCOMPARE(revise_on_command_line(task).out, done + "2 files was found, no files was revised.\n");
    QCOMPARE(plugin_log().filter("revise").size(), 2);
}

void test_console_revision::an_empty_file_gets_no_record() {
    write_file(source("a.tst"), "");
    revision_task const task = task_for({sources->path()});
    revise_on_command_line(task);
    QCOMPARE(revise_on_command_line(task).out,
             done + "1 file was found, 1 file was revised, no files was changed.\n");
    QVERIFY(plugin_log().filter("revise").isEmpty());

    write_file(source("a.tst"), "x  y");
    set_modification_time(source("a.tst"), now() + 5);
    QCOMPARE(revise_on_command_line(task).out,
             done + "1 file was found, 1 file was revised, 1 file was changed.\n");
    QCOMPARE(contents_of(source("a.tst")), QByteArray("x y"));
}

void test_console_revision::hands_the_plugin_the_line_ending() {
    write_file(source("a.tst"), "a\r\nb\r\n");
    write_file(source("b.tst"), QByteArray("a\0\n\0", 4));
    revise_on_command_line(task_for({source("a.tst"), source("b.tst")}));
    QCOMPARE(plugin_log(), (QStringList{"revise 0d0a 20 6", "revise 0a00 2000 4", "end_of_revision"}));
}

void test_console_revision::does_not_follow_symbolic_links() {
    QTemporaryDir elsewhere;
    QString const target = write_file(QDir(elsewhere.path()).filePath("target.tst"), "x  y");
    write_file(source("tree/real.tst"), "x  y");
    QFile::link(target, source("tree/link.tst"));
    QFile::link(elsewhere.path(), source("tree/linked_directory"));
    QCOMPARE(revise_on_command_line(task_for({source("tree")})).out,
             done + "1 file was found, 1 file was revised, 1 file was changed.\n");
    QCOMPARE(contents_of(target), QByteArray("x  y"));
    QCOMPARE(contents_of(source("tree/real.tst")), QByteArray("x y"));
}

void test_console_revision::records_the_style_of_an_addon_in_UTF_16() {
    // Two styles saved in UTF-16: a file revised in one is revised again in the other.
    auto in_UTF_16 = [](QByteArray const& text) {
        QByteArray wide;
        for (char c : text)
            wide.append(c).append('\0');
        return wide;
    };
    qint64 const past = now() - 100;
    for (auto const& style : {"Narrow", "Wide"})
        set_modification_time(install_addon(QString(style) + "[Test].style", in_UTF_16(addon_text(style))),
                              past);
    write_file(source("a.tst"), "x y");

    QCOMPARE(revise_on_command_line(task_for({sources->path()}, "tst", "Narrow")).out,
             done + "1 file was found, 1 file was revised, no files was changed.\n");
    QCOMPARE(revise_on_command_line(task_for({sources->path()}, "tst", "Wide")).out,
             done + "1 file was found, 1 file was revised, no files was changed.\n");
    QCOMPARE(revise_on_command_line(task_for({sources->path()}, "tst", "Wide")).out,
             done + "1 file was found, no files was revised.\n");
}

void test_console_revision::of_two_plugins_of_a_language_uses_the_first_listed_data() {
    QTest::addColumn<QString>("twin_as");
    QTest::addColumn<QByteArray>("used");  // the tag the used plugin writes in its log
    QTest::newRow("the twin listed first") << "liba-language-plugin.so" << QByteArray("twin-language-plugin");
    QTest::newRow("the twin listed last") << "libz-language-plugin.so" << QByteArray("test-language-plugin");
}

void test_console_revision::of_two_plugins_of_a_language_uses_the_first_listed() {
    QFETCH(QString, twin_as);
    QFETCH(QByteArray, used);
    install_plugin(QString(STYLE_TARNEL_TEST_PLUGINS_DIR "/libtwin-language-plugin.so"), twin_as);
    write_file(source("a.tst"), "x  y");
    revise_on_command_line(task_for({sources->path()}));
    QCOMPARE(contents_of(QDir(qEnvironmentVariable("XDG_CACHE_HOME")).filePath("test-plugin.log")),
             used + " revise - - 4\n" + used + " end_of_revision\n");
}

void test_console_revision::a_file_edited_while_the_plugin_has_it_is_offered_again_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("edited");
    QTest::newRow("the plugin had nothing to change") << QByteArray("x y") << QByteArray("x  y z");
    QTest::newRow("the plugin refused it") << QByteArray("SYNTAX_ERROR") << QByteArray("x  y");
    QTest::newRow("the plugin changed it") << QByteArray("x  y") << QByteArray("x  y  z");
}

void test_console_revision::a_file_edited_while_the_plugin_has_it_is_offered_again() {
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, edited);
    QString const file = write_file(source("a.tst"), content);
    qputenv("TEST_PLUGIN_DELAY_MS", "1500");
    std::thread editor([&] {
        for (int i = 0; i < 1000 && plugin_log().filter("revise").isEmpty(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        write_file(file, edited);
    });
    console_output const first = revise_on_command_line(task_for({file}));
    editor.join();
    qunsetenv("TEST_PLUGIN_DELAY_MS");

    QCOMPARE(first.out, done + "Sorry, I can't revise file '" + file.toStdString() +
                            "'. If this file exists - please check read/write permissions.\n\n"
                            "1 file was found, 1 file was revised, no files was changed.\n");
    QCOMPARE(contents_of(file), edited);
    // No record hides the edit from the next run.
    QCOMPARE(revise_on_command_line(task_for({file})).out,
             done + "1 file was found, 1 file was revised, 1 file was changed.\n");
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_console_revision)
#include "test_console_revision.moc"
