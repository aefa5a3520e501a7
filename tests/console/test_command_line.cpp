// The command line as a user meets it, through the copied executable: every refusal and message
// word for word, the outcomes of import, export, rename and delete in the store, the fixed
// outputs (usage, version, listing), the first-start agreement and the self-update.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

QByteArray const U = " Please run app with '-h' flag to see usage info.\n";
QByteArray const done = "It's done.\n";
QByteArray const version = "Style Tarnel, version 2.0.0\n";

// The installed plugins | addons, and " | user: " and the user's own addons when there are some.
QString store_of(temporary_bundle const& bundle) {
    QStringList const own = QDir(bundle.user_addons_directory()).entryList(QDir::Files, QDir::Name);
    return QDir(bundle.plugins_directory()).entryList(QDir::Files, QDir::Name).join(' ') + " | " +
           QDir(bundle.addons_directory()).entryList(QDir::Files, QDir::Name).join(' ') +
           (own.isEmpty() ? QString() : " | user: " + own.join(' '));
}

void open_to_others(QString const& path) {
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
}

// The variations of the installed bundle a row asks for; all but "lone" and "no language" start
// from the test languages, and every work directory holds the same files to name. `outside` holds
// what the unprivileged user must not read: everything in the bundle is opened to that user.
void set_up(installed_bundle& bundle, QString const& setup, QTemporaryDir const& outside) {
    bundle.write_file("a.tst", "a  b\n");
    // Addons whose names say another style than their text.
    bundle.write_file("Evil.style", addon_text("Plain", "Test", "begin  SOME  end"));
    bundle.write_file("Neat[Test].style", addon_text("Plain", "Test", "begin  SOME  end"));
    QDir(bundle.work_directory()).mkpath("Folder[Test].style");
    // Files only read, of another user (root) to the unprivileged user: readable, not writable;
    // and one that user cannot read.
    QString const twin = bundle.write_file("ReadOnly/libtwin-language-plugin.so", "");
    QFile::remove(twin);
    QFile::copy(built::twin_language_plugin(), twin);
    QFile::setPermissions(twin, QFile::ReadOwner | QFile::ReadOther);
    QFile closed(outside.path() + "/Closed[Test].style");
    if (closed.open(QIODevice::WriteOnly))
        closed.write(addon_text("Closed", "Test"));
    closed.close();
    QFile::setPermissions(closed.fileName(), QFile::ReadOwner | QFile::WriteOwner);
    QFile::setPermissions(outside.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeOther);
    QFile::link(closed.fileName(), bundle.work_directory() + "/Closed[Test].style");
    bundle.write_file("House[Test].style", addon_text("House", "Test"));
    bundle.write_file("kept/Plain[Test].style", addon_text("Plain", "Test", "begin  SOME  end"));
    bundle.write_file("K[C].style", addon_text("K", "C"));
    for (auto const& name : {"a.b.style", "House[Test].STYLE", "notes.txt"})
        bundle.write_file(name, addon_text("House", "Test"));
    QString const read_only = bundle.write_file("ReadOnly[Test].style", addon_text("ReadOnly", "Test"));
    QFile::setPermissions(read_only, QFile::ReadOwner | QFile::ReadOther);
    bundle.write_file("project/.style-tarnel", "[Test]\naddon = ../ReadOnly[Test].style\n");
    bundle.write_file("project/a.tst", "a  b\n");
    bundle.write_file("out/Wide[Test].style", "an older export\n");
    for (QString const& plugin : {built::other_language_plugin(), built::library_without_plugin(),
                                  built::plugin_without_interface()})
        QFile::copy(plugin, bundle.work_directory() + "/" + QFileInfo(plugin).fileName());
    open_to_others(bundle.work_directory() + "/out");
    for (auto const& name : {"/House[Test].style", "/kept", "/kept/Plain[Test].style", "/libother-language-plugin.so"})
        open_to_others(bundle.work_directory() + name);
    QString const plugins = bundle.plugins_directory(), addons = bundle.addons_directory();
    if (setup == "lone" || setup == "no language") {
        for (QString const& file : bundle.installed_plugins() + bundle.installed_addons())
            QFile::remove((file.endsWith(".so") ? plugins : addons) + "/" + file);
        if (setup == "lone")
            bundle.add_plugin(built::test_language_plugin());
        else
            bundle.add_addon(addon_file("Plain", "Test"), addon_text("Plain", "Test"));
    } else if (setup == "stray") {
        bundle.add_addon("notes.txt", "just notes\n");
    } else if (setup == "C styles") {
        bundle.add_addon("c-gnu.style", addon_text("GNU", "C"));
        bundle.add_addon("c-kr.style", addon_text("Kernighan&Ritchie", "C"));
    } else if (setup == "SDK example") {
        bundle.add_plugin(built::example_plugin());
        bundle.add_addon("Spaced[INI].style", bundle.contents_of(built::source_dir() + "/sdk/example/Spaced[INI].style"));
    } else if (setup == "taken file") {
        bundle.add_addon("Tidy[Test].style", addon_text("Neat", "Test"));
    } else if (setup == "kept addon") {
        // A write-protected addon is the user's to keep, though the directory would allow it.
        QFile::setPermissions(addons + "/Plain[Test].style", QFile::ReadOwner | QFile::ReadOther);
        bundle.share_with_unprivileged_user();
        open_to_others(addons);
    } else if (setup == "open store") {
        bundle.share_with_unprivileged_user();
        open_to_others(plugins);
        open_to_others(addons);
    } else if (setup == "closed") {
        QFile::setPermissions(bundle.work_directory() + "/out", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                                    QFile::ReadOther | QFile::ExeOther);
    }
}

}  // namespace

class test_command_line : public QObject {
    Q_OBJECT
private slots:
    void answers_data();
    void answers();
    void prints_the_usage_text_line_by_line();
    void a_person_at_a_terminal_accepts_the_agreement_once();
    void updates_the_executable_and_cleans_up_at_the_next_start();
    void refuses_an_update_it_cannot_apply();
    void refuses_an_update_that_is_no_executable_of_ours_data();
    void refuses_an_update_that_is_no_executable_of_ours();
    void a_style_of_the_users_own_hides_the_bundled_one();
};

// The rows come from answers.txt, where every message can be read word for word.
void test_command_line::answers_data() {
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("store");
    for (auto const& row : cases_in(QFINDTESTDATA("answers.txt")))
        QTest::newRow(qPrintable(row["case"])) << row["setup"] << row["words"].split(" | ") << unescaped(row["err"])
                                               << unescaped(row["out"]) << row["status"].toInt() << row["store"];
}

void test_command_line::answers() {
    QFETCH(QString, setup);
    QFETCH(QStringList, words);
    QFETCH(QByteArray, err);
    QFETCH(QByteArray, out);
    QFETCH(int, status);
    QFETCH(QString, store);
    installed_bundle bundle;
    QTemporaryDir const outside;
    set_up(bundle, setup, outside);
    QString const before = store_of(bundle);
    QByteArray const kept = bundle.contents_of(bundle.addons_directory() + "/Plain[Test].style");
    auto filled = [&](QByteArray text) {
        return text.replace("%W", bundle.work_directory().toUtf8()).replace("%H", bundle.home().toUtf8());
    };
    run_options options;
    options.unprivileged = setup == "nobody" || setup == "kept addon" || setup == "closed" || setup == "open store";
    if (setup == "throwing")
        options.extra_environment.insert("TEST_PLUGIN_THROWING", "other-language-plugin");
    COMPARE_RUN(bundle.run(words, options), filled(err), filled(out), status);
    QCOMPARE(store_of(bundle).trimmed(), store.isEmpty() ? before.trimmed() : store.trimmed());
    QCOMPARE(bundle.contents_of(bundle.work_directory() + "/a.tst"), QByteArray("a  b\n"));
    QByteArray const exported = bundle.contents_of(bundle.work_directory() + "/out/Wide[Test].style");
    QCOMPARE(exported, QTest::currentDataTag() == QByteArray("export") ? addon_text("Wide", "Test")
                                                                        : QByteArray("an older export\n"));
    if (QByteArray(QTest::currentDataTag()).startsWith("import"))
        QCOMPARE(bundle.contents_of(bundle.addons_directory() + "/Plain[Test].style"), kept);
}

void test_command_line::prints_the_usage_text_line_by_line() {
    QList<QByteArray> const expected = temporary_bundle::contents_of(QFINDTESTDATA("usage.txt")).split('\n');
    installed_bundle bundle;
    for (auto const& flag : {"-h", "--help"}) {
        run_result const result = bundle.run({flag});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out, QByteArray());
        QList<QByteArray> const lines = result.err.split('\n');
        for (int i = 0; i < std::min(lines.size(), expected.size()); ++i)
            QCOMPARE(QString::fromUtf8(lines[i]), QString::fromUtf8(expected[i]));
        QCOMPARE(lines.size(), expected.size());
    }
}

void test_command_line::a_person_at_a_terminal_accepts_the_agreement_once() {
    installed_bundle bundle;
    // Without a terminal it never asks, and keeps no settings.
    COMPARE_RUN(bundle.run({"-v"}, run_options{false, "n\n", {}, {}, 20000, {}}), version, "", 0);
    QVERIFY(!QFile::exists(bundle.config_home() + "/Style Tarnel/Style Tarnel.conf"));
    // script(1) gives the program a terminal as its standard input.
    auto at_terminal = [&](QByteArray const& answer) {
        QProcess process;
        process.setProcessEnvironment(bundle.environment());
        process.start("script", {"-qec", "'" + bundle.executable() + "' -v", "/dev/null"});
        process.waitForStarted();
        process.write(answer);
        process.closeWriteChannel();
        process.waitForFinished(20000);
        return process.readAllStandardOutput();
    };
    QByteArray const declined = at_terminal("n\n");
    QVERIFY2(declined.contains("Do you accept these terms? [y/n]"), declined);
    QVERIFY(!declined.contains("version 2.0.0"));
    QVERIFY(at_terminal("y\n").contains("Style Tarnel, version 2.0.0"));
    QByteArray const later = at_terminal("");
    QVERIFY(!later.contains("Do you accept") && later.contains("Style Tarnel, version 2.0.0"));
    QVERIFY(QFile::exists(bundle.config_home() + "/Style Tarnel/Style Tarnel.conf"));
}

void test_command_line::updates_the_executable_and_cleans_up_at_the_next_start() {
    installed_bundle bundle;
    QString const update = bundle.work_directory() + "/Style Tarnel";
    QVERIFY(QFile::copy(built::executable(), update));
    bundle.write_file("../bin/notes~", "an editor's backup\n");
    COMPARE_RUN(bundle.run({"--update=Style Tarnel"}), done, "", 0);
    QString const bin = bundle.root() + "/bin/";
    QVERIFY(QFile::exists(bin + "Style Tarnel~"));
    QVERIFY(QFile::exists(update));
    // The next start removes the backup it made, and no other file ending with "~".
    COMPARE_RUN(bundle.run({"-v"}), version, "", 0);
    QCOMPARE(QDir(bin).entryList(QDir::Files), (QStringList{"notes~", "Style Tarnel"}));
}

void test_command_line::refuses_an_update_it_cannot_apply() {
    installed_bundle bundle;
    QString const bin = bundle.root() + "/bin";
    COMPARE_RUN(bundle.run({"--update=nothing"}), "No such file '" + bundle.work_directory().toUtf8() + "/nothing'." + U,
                "", 1);
    // A directory without write permission, as a package manager installs one: the executable
    // cannot be moved aside, and the package manager is the way to update it.
    QString const update = bundle.work_directory() + "/Style Tarnel";
    QVERIFY(QFile::copy(built::executable(), update));
    QFile::setPermissions(update, QFile::permissions(update) | QFile::WriteOther);
    COMPARE_RUN(bundle.run({"--update=Style Tarnel"}, as_nobody()),
                "I cannot apply update '" + update.toUtf8() +
                    "', Style Tarnel is installed where you cannot change it: please update it with the package "
                    "manager that installed it (apt, for the Debian package).\n",
                "", 1);
    QCOMPARE(QDir(bin).entryList(QDir::Files), QStringList{"Style Tarnel"});
    // The running executable as its own update: moved aside, it must return to its place.
    QByteArray const original = temporary_bundle::contents_of(bundle.executable());
    COMPARE_RUN(bundle.run({"--update=" + bundle.executable()}),
                "I cannot apply update '" + bundle.executable().toUtf8() + "'.\n", "", 1);
    QCOMPARE(QDir(bin).entryList(QDir::Files), QStringList{"Style Tarnel"});
    QCOMPARE(temporary_bundle::contents_of(bundle.executable()), original);
}

// A file that does not run as this product and answer "-v" with its version line is no update: the
// installation stays as it was, and the program still starts.
void test_command_line::refuses_an_update_that_is_no_executable_of_ours_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("just some notes\n");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a library") << temporary_bundle::contents_of(built::test_language_plugin());
    QTest::newRow("another program") << QByteArray("#!/bin/sh\necho 'Some Tool, version 2.0.0' >&2\n");
    QTest::newRow("our line on standard output") << QByteArray("#!/bin/sh\necho 'Style Tarnel, version 2.0.0'\n");
    QTest::newRow("our line, then failing") << QByteArray("#!/bin/sh\necho 'Style Tarnel, version 2.0.0' >&2\nexit 1\n");
    QTest::newRow("our line without a version") << QByteArray("#!/bin/sh\necho 'Style Tarnel, version ' >&2\n");
    QTest::newRow("never answering") << QByteArray("#!/bin/sh\nexec sleep 600\n");
}

void test_command_line::refuses_an_update_that_is_no_executable_of_ours() {
    QFETCH(QByteArray, content);
    installed_bundle bundle;
    QString const update = bundle.write_file("update", content);
    QByteArray const original = temporary_bundle::contents_of(bundle.executable());
    COMPARE_RUN(bundle.run({"--update=update"}),
                "I cannot apply update '" + update.toUtf8() +
                    "', it is not an executable of Style Tarnel: it must answer '-v' with 'Style Tarnel, version ' and "
                    "its version.\n",
                "", 1);
    QCOMPARE(QDir(bundle.root() + "/bin").entryList(QDir::Files | QDir::Hidden), QStringList{"Style Tarnel"});
    QCOMPARE(temporary_bundle::contents_of(bundle.executable()), original);
    COMPARE_RUN(bundle.run({"-v"}), version, "", 0);
}

// In a bundle the user cannot write (a package installed by root), the user's own styles go to
// the user's directory and hide the bundle's of the same name and language; deleting the user's
// copy shows the bundle's again, which itself is never deleted or written. Faults caught: the
// bundle's style used in spite of the user's, listed twice, the user's copy not deletable, or a
// bundled file changed.
void test_command_line::a_style_of_the_users_own_hides_the_bundled_one() {
    installed_bundle bundle;
    QString const own_plain = addon_text("Plain", "Test", "begin  SOME  end");
    bundle.write_file("mine/Plain[Test].style", own_plain.toUtf8());
    bundle.share_with_unprivileged_user();
    for (auto const& name : {"/mine", "/mine/Plain[Test].style"})
        open_to_others(bundle.work_directory() + name);
    QString const bundled = store_of(bundle);
    QByteArray const bundled_plain = bundle.contents_of(bundle.addons_directory() + "/Plain[Test].style");
    QDir(bundle.work_directory()).mkpath("out");
    QFile::setPermissions(bundle.work_directory() + "/out", QFile::Permissions(0x7777));
    auto exported_plain = [&]() -> QByteArray {
        QFile::remove(bundle.work_directory() + "/out/Plain[Test].style");
        if (bundle.run({"-l=Test", "-s=Plain", "--export=out"}, as_nobody()).status != 0)
            return "no export";
        return bundle.contents_of(bundle.work_directory() + "/out/Plain[Test].style");
    };

    COMPARE_RUN(bundle.run({"--import=mine/Plain[Test].style"}, as_nobody()), done, "", 0);
    QCOMPARE(store_of(bundle), bundled + " | user: Plain[Test].style");
    QCOMPARE(exported_plain(), own_plain.toUtf8());
    run_result const listing = bundle.run({"--ls"}, as_nobody());
    QCOMPARE(listing.err.count("Plain"), 2);  // one of Test, one of Other

    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "--delete"}, as_nobody()), done, "", 0);
    QCOMPARE(store_of(bundle), bundled);
    QCOMPARE(exported_plain(), bundled_plain);
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Plain", "--delete"}, as_nobody()),
                "I cannot delete style 'Plain', it is installed with Style Tarnel. Rename or edit it to make a copy "
                "of your own.\n",
                "", 1);
    QCOMPARE(store_of(bundle), bundled);
    QCOMPARE(bundle.contents_of(bundle.addons_directory() + "/Plain[Test].style"), bundled_plain);
}

QTEST_GUILESS_MAIN(test_command_line)
#include "test_command_line.moc"
