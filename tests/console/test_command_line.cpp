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
QByteArray const L = " Please run app with '--ls' flag to see what supported.\n";
QByteArray const form = "Valid argument (except '--delete') must be in the form 'name=value'." + U;
QByteArray const unknown = "There are unknown arguments." + U;
QByteArray const not_understood = "I don't understand what you want to do." + U;
QByteArray const done = "It's done.\n";
QByteArray const version = "Style Tarnel, version 2.0.0\n";
QByteArray const no_languages = "Unfortunately, you have no programming languages. Please import it.\n";
QByteArray const bad_extensions = "Filename extension may contain English letters and digits only.\n";
QString const installed = "libother-language-plugin.so libtest-language-plugin.so | "
                          "Plain[Other].style Plain[Test].style Wide[Test].style";

QString store_of(temporary_bundle const& bundle) {
    return QDir(bundle.plugins_directory()).entryList(QDir::Files, QDir::Name).join(' ') + " | " +
           QDir(bundle.addons_directory()).entryList(QDir::Files, QDir::Name).join(' ');
}

void open_to_others(QString const& path) {
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
}

// The variations of the installed bundle a row asks for; all but "lone" and "no language" start
// from the test languages, and every work directory holds the same files to name.
void set_up(installed_bundle& bundle, QString const& setup) {
    bundle.write_file("a.tst", "a  b\n");
    bundle.write_file("House[Test].style", addon_text("House", "Test"));
    bundle.write_file("kept/Plain[Test].style", addon_text("Plain", "Test", "begin  SOME  end"));
    bundle.write_file("K[C].style", addon_text("K", "C"));
    for (auto const& name : {"a.b.style", "House[Test].STYLE", "notes.txt"})
        bundle.write_file(name, addon_text("House", "Test"));
    QString const read_only = bundle.write_file("ReadOnly[Test].style", addon_text("ReadOnly", "Test"));
    QFile::setPermissions(read_only, QFile::ReadOwner | QFile::ReadOther);
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
};

// Each row: a bundle set up as `setup`, the words typed, what the program says on standard error
// and standard output, its status, and the store afterwards ("" when unchanged). In texts, %W is
// the work directory and %H the home directory.
void test_command_line::answers_data() {
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("store");
    auto row = [](char const* name, QString setup, QStringList words, QByteArray err, int status,
                  QString store = QString(), QByteArray out = QByteArray()) {
        QTest::newRow(name) << setup << words << err << out << status << store;
    };
    row("empty value", "", {"--lang="}, form, 1);
    row("empty name", "", {"=C", "-h"}, form, 1);
    row("form checked before names", "", {"--bogus", "--bogus="}, form, 1);
    row("unknown bare name", "", {"--bogus"}, unknown, 1);
    row("unknown name with value", "", {"--bogus=1", "-l=C"}, unknown, 1);
    row("names are not prefixes", "", {"--lan=C", "-s=Plain", "-p=."}, unknown, 1);
    row("words of Qt's own", "", {"-qmljsdebugger=port:1", "-v"}, unknown, 1);
    row("help and version", "", {"-h", "-v"}, not_understood, 1);
    row("help with a value", "", {"--help=1"}, not_understood, 1);
    row("listing with a value", "", {"--ls=all"}, not_understood, 1);
    row("two pairs of the same name", "", {"-l=Test", "--lang=Other", "-s=Plain", "-p=."}, not_understood, 1);
    row("force twice", "", {"-l=Test", "-s=Plain", "-p=.", "-f", "--force"}, not_understood, 1);
    row("two extension lists", "", {"-l=Test", "-s=Plain", "-p=.", "--exts=c", "--exts=h"}, not_understood, 1);
    row("revise without a path", "", {"-l=Test", "-s=Plain", "-f"}, not_understood, 1);
    row("import and more", "", {"--import=a", "-l=Test"}, not_understood, 1);
    row("version", "", {"-v"}, version, 0);
    row("long version", "", {"--version"}, version, 0);
    row("listing", "C styles", {"--ls"},
        " Supported programming languages and formatting styles: \n\n Other .. Plain\n\n Test ... Plain\n"
        "        . Wide\n\n", 0, installed + " c-gnu.style c-kr.style");
    row("listing the SDK example built out of tree", "SDK example", {"--ls"},
        " Supported programming languages and formatting styles: \n\n INI .... Spaced\n\n Other .. Plain\n\n"
        " Test ... Plain\n        . Wide\n\n", 0,
        "libini-language-plugin.so libother-language-plugin.so libtest-language-plugin.so | Plain[Other].style "
        "Plain[Test].style Spaced[INI].style Wide[Test].style");
    row("listing a language without styles", "lone", {"--ls"},
        " Supported programming languages and formatting styles: \n\n Test .. there's no styles\n\n", 0,
        "libtest-language-plugin.so | ");
    row("listing without languages", "no language", {"--ls"}, no_languages, 0, " | Plain[Test].style");
    row("a stray file hides every style", "stray", {"--ls"}, no_languages, 0, installed + " notes.txt");

    row("revise in an unknown language", "", {"-l=Java", "-s=Plain", "-p=a.tst"}, "There is no language 'Java'." + L, 1);
    row("revise in an unknown style", "", {"-l=Other", "-s=Wide", "-p=a.tst"},
        "There is no style 'Wide' for language 'Other'." + L, 1);
    row("forced revise in an unknown style", "", {"-l=Test", "-s=Nope", "-p=a.tst", "-f"},
        "There is no style 'Nope' for language 'Test'." + L, 1);
    row("missing path", "", {"-l=Test", "-s=Plain", "-p=a.tst", "-p=missing"},
        "No such file or directory '%W/missing', please correct path.\n", 1);
    row("missing path after a file", "", {"-l=Test", "-s=Plain", "-p=a.tst", "-p=zz"},
        "No such file or directory '%W/zz', please correct path.\n", 1);
    row("missing path in the home directory", "", {"-l=Test", "-s=Plain", "-p=~/nothing"},
        "No such file or directory '%H/nothing', please correct path.\n", 1);
    for (QByteArray extension : {".tst", "t-s", "c++"})
        row(("extension " + extension).constData(), "", {"-l=Test", "-s=Plain", "-p=a.tst", "--exts=" + extension},
            bad_extensions, 1);
    row("named file of another extension", "", {"-l=Test", "-s=Plain", "-p=notes.txt", "-p=a.tst"},
        "Preparing, please wait...\r", 0, "",
        "Sorry, but you can specify only paths to files with extensions 'tst,test,', please correct it.\n");

    row("import a language", "lone", {"--import=libother-language-plugin.so"}, done, 0,
        "libother-language-plugin.so libtest-language-plugin.so | ");
    row("import a library that is no plugin", "", {"--import=libno-qt-plugin.so"},
        "I cannot import language '%W/libno-qt-plugin.so'.\n", 1);
    row("import a plugin of another interface", "", {"--import=libno-interface-plugin.so"},
        "I cannot import language '%W/libno-interface-plugin.so'.\n", 1);
    row("import a style", "", {"--import=House[Test].style"}, done, 0,
        "libother-language-plugin.so libtest-language-plugin.so | House[Test].style Plain[Other].style Plain[Test].style Wide[Test].style");
    row("import a style of a language not installed", "", {"--import=K[C].style"},
        "There is no language 'C', so I cannot import style for it. Please import this language first.\n", 1);
    for (QByteArray file : {"a.b.style", "House[Test].STYLE", "notes.txt"})
        row(("import " + file).constData(), "", {"--import=" + file}, "Invalid extension of file '%W/" + file + "'." + U, 1);
    row("import a missing file", "", {"--import=missing.style"}, "No such file '%W/missing.style'." + U, 1);
    row("import a read-only file", "nobody", {"--import=ReadOnly[Test].style"},
        "No such file '%W/ReadOnly[Test].style'." + U, 1);
    auto const cannot_store = [](QByteArray file) {
        return "I cannot import style '%W/" + file + "', it has invalid format. For more info please read "
                                                    "https://style-tarnel.org/user-guide/style-addon-by-hand.\n";
    };
    row("import where the styles cannot be written", "nobody", {"--import=House[Test].style"},
        cannot_store("House[Test].style"), 1);
    row("import over a write-protected addon", "kept addon", {"--import=kept/Plain[Test].style"},
        cannot_store("kept/Plain[Test].style"), 1);

    row("import a plugin where the user cannot write", "nobody", {"--import=libother-language-plugin.so"},
        "I cannot import language '%W/libother-language-plugin.so'.\n", 1);
    row("list with a plugin that throws when asked", "throwing", {"--ls"},
        " Supported programming languages and formatting styles: \n\n Test .. Plain\n       . Wide\n\n", 0);
    row("revise with a plugin that throws when asked", "throwing", {"-l=Other", "-s=Plain", "-p=a.tst"},
        "There is no language 'Other'." + L, 1);
    row("import a plugin that throws when asked", "throwing", {"--import=libother-language-plugin.so"},
        "I cannot import language '%W/libother-language-plugin.so'.\n", 1);
    row("export", "", {"-l=Test", "-s=Wide", "--export=out"}, done, 0);
    QByteArray const cannot_export = "I cannot export style to '%W/out'. Please make sure this directory exists and "
                                     "you have write permissions.\n";
    row("export where the user cannot write", "closed", {"-l=Test", "-s=Wide", "--export=out"}, cannot_export, 1);
    row("export to a missing directory", "", {"-l=Test", "-s=Wide", "--export=missing"},
        "I cannot export style to '%W/missing'. Please make sure this directory exists and you have write "
        "permissions.\n", 1);
    row("export an unknown style", "", {"-l=Test", "-s=Nope", "--export=out"},
        "There is no style 'Nope' for language 'Test'." + L, 1);

    row("delete a style", "", {"-l=Test", "-s=Wide", "--delete"}, done, 0,
        "libother-language-plugin.so libtest-language-plugin.so | Plain[Other].style Plain[Test].style");
    row("delete a language with its styles", "", {"--lang=Other", "--delete"}, done, 0,
        "libtest-language-plugin.so | Plain[Test].style Wide[Test].style");
    row("delete the only style", "", {"-l=Other", "-s=Plain", "--delete"},
        "Sorry, I cannot delete style 'Plain', because it's the only one for language 'Other'. If you don't need "
        "this style - please import at least one other for language 'Other', and after that you'll be able to "
        "delete style 'Plain'.\n", 1);
    row("delete the only language", "lone", {"-l=Test", "--delete"},
        "Sorry, I cannot delete language 'Test', because it's the only one. If you don't need this language - "
        "please import at least one other, and after that you'll be able to delete language 'Test'.\n", 1,
        "libtest-language-plugin.so | ");
    row("delete an unknown style", "", {"-l=Test", "-s=Nope", "--delete"},
        "There is no style 'Nope' for language 'Test', so I cannot delete it." + L, 1);
    row("delete an unknown language", "", {"-l=Java", "--delete"},
        "There is no language 'Java', so I cannot delete it." + L, 1);

    row("delete a style the user cannot remove", "nobody", {"-l=Test", "-s=Wide", "--delete"},
        "I cannot delete style 'Wide'.\n", 1);
    row("delete a language the user cannot remove", "nobody", {"-l=Other", "--delete"},
        "Sorry, I cannot delete language 'Other'.\n", 1);
    row("rename a style the user cannot write", "nobody", {"-l=Test", "-s=Wide", "--rename=Broad"},
        "I cannot rename style 'Wide'.\n", 1);
    row("rename", "", {"-l=Test", "-s=Wide", "--rename=House & Co_2-b"}, done, 0,
        "libother-language-plugin.so libtest-language-plugin.so | House & Co_2-b[Test].style Plain[Other].style "
        "Plain[Test].style");
    for (QByteArray name : {"a/b", "..", "Stil\xc3\xbc"})
        row(("rename to " + name).constData(), "", {"-l=Test", "-s=Wide", QString::fromUtf8("--rename=" + name)},
            "Invalid name of style '" + name + "', it must be in English.\n", 1);
    row("rename to nothing", "", {"-l=Test", "-s=Wide", "--rename"},
        "Invalid name of style '', name cannot be empty.\n", 1);
    row("rename to a taken name", "", {"-l=Test", "-s=Wide", "--rename=Plain"},
        "Invalid name of style 'Plain', such style already exists.\n", 1);
    row("rename onto a file of another style", "taken file", {"-l=Test", "-s=Wide", "--rename=Tidy"},
        "I cannot rename style 'Wide'.\n", 1,
        "libother-language-plugin.so libtest-language-plugin.so | Plain[Other].style Plain[Test].style Tidy[Test].style Wide[Test].style");
}

void test_command_line::answers() {
    QFETCH(QString, setup);
    QFETCH(QStringList, words);
    QFETCH(QByteArray, err);
    QFETCH(QByteArray, out);
    QFETCH(int, status);
    QFETCH(QString, store);
    installed_bundle bundle;
    set_up(bundle, setup);
    QString const before = store_of(bundle);
    QByteArray const kept = bundle.contents_of(bundle.addons_directory() + "/Plain[Test].style");
    auto filled = [&](QByteArray text) {
        return text.replace("%W", bundle.work_directory().toUtf8()).replace("%H", bundle.home().toUtf8());
    };
    run_options options;
    options.unprivileged = setup == "nobody" || setup == "kept addon" || setup == "closed";
    if (setup == "throwing")
        options.extra_environment.insert("TEST_PLUGIN_THROWING", "other-language-plugin");
    COMPARE_RUN(bundle.run(words, options), filled(err), filled(out), status);
    QCOMPARE(store_of(bundle), store.isEmpty() ? before : store);
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
    COMPARE_RUN(bundle.run({"-v"}), version, "", 0);
    QCOMPARE(QDir(bin).entryList(QDir::Files), QStringList{"Style Tarnel"});
}

void test_command_line::refuses_an_update_it_cannot_apply() {
    installed_bundle bundle;
    QString const bin = bundle.root() + "/bin";
    COMPARE_RUN(bundle.run({"--update=nothing"}), "No such file '" + bundle.work_directory().toUtf8() + "/nothing'." + U,
                "", 1);
    // A directory without write permission: the executable cannot be moved aside.
    QString const update = bundle.work_directory() + "/Style Tarnel";
    QVERIFY(QFile::copy(built::executable(), update));
    QFile::setPermissions(update, QFile::permissions(update) | QFile::WriteOther);
    COMPARE_RUN(bundle.run({"--update=Style Tarnel"}, as_nobody()), "I cannot apply update '" + update.toUtf8() + "'.\n",
                "", 1);
    QCOMPARE(QDir(bin).entryList(QDir::Files), QStringList{"Style Tarnel"});
    // The running executable as its own update: moved aside, it must return to its place.
    QByteArray const original = temporary_bundle::contents_of(bundle.executable());
    COMPARE_RUN(bundle.run({"--update=" + bundle.executable()}),
                "I cannot apply update '" + bundle.executable().toUtf8() + "'.\n", "", 1);
    QCOMPARE(QDir(bin).entryList(QDir::Files), QStringList{"Style Tarnel"});
    QCOMPARE(temporary_bundle::contents_of(bundle.executable()), original);
}

QTEST_GUILESS_MAIN(test_command_line)
#include "test_command_line.moc"
