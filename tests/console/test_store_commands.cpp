// Importing, exporting, deleting, renaming and updating through the real executable.
#include "tests/console/helpers/installed_bundle.h"

namespace {

QByteArray const usage_hint = " Please run app with '-h' flag to see usage info.\n";
QByteArray const listing_hint = " Please run app with '--ls' flag to see what supported.\n";

run_options as_nobody() {
    run_options options;
    options.unprivileged = true;
    return options;
}

QByteArray utf8(QString const& text) { return text.toUtf8(); }

}  // namespace

class test_store_commands : public QObject {
    Q_OBJECT
private slots:
    void imports_a_language_plugin();
    void refuses_a_library_that_is_no_plugin();
    void imports_a_style_addon();
    void refuses_a_style_of_a_language_not_installed();
    void refuses_files_it_cannot_import_data();
    void refuses_files_it_cannot_import();
    void reports_a_style_it_cannot_store();
    void exports_a_style();
    void refuses_to_export_where_it_cannot_write();
    void deletes_a_style();
    void never_deletes_the_only_style_or_the_only_language();
    void refuses_to_delete_what_is_not_installed();
    void deletes_a_language_with_its_styles();
    void renames_a_style();
    void refuses_invalid_names_and_taken_file_names();
    void updates_the_executable_and_cleans_up_at_the_next_start();
    void refuses_an_update_it_cannot_read();
    void never_leaves_the_program_without_its_executable();
};

void test_store_commands::imports_a_language_plugin() {
    temporary_bundle bundle;
    bundle.add_plugin(built::test_language_plugin());
    QString const plugin = bundle.work_directory() + "/libother-language-plugin.so";
    QVERIFY(QFile::copy(built::other_language_plugin(), plugin));
    COMPARE_RUN(bundle.run({"--import=libother-language-plugin.so"}), "It's done.\n", "", 0);
    QVERIFY(QFile::exists(bundle.plugins_directory() + "/libother-language-plugin.so"));
    QVERIFY(QFile::exists(plugin));  // copied, not moved
    QVERIFY(bundle.run({"--ls"}).err.contains(" Other .. there's no styles\n"));
}

void test_store_commands::refuses_a_library_that_is_no_plugin() {
    installed_bundle bundle;
    QString const library = bundle.work_directory() + "/libno-qt-plugin.so";
    QVERIFY(QFile::copy(built::library_without_plugin(), library));
    QStringList const before = bundle.installed_plugins();
    COMPARE_RUN(bundle.run({"--import=" + library}), "I cannot import language '" + utf8(library) + "'.\n", "", 1);
    QCOMPARE(bundle.installed_plugins(), before);
}

void test_store_commands::imports_a_style_addon() {
    installed_bundle bundle;
    QString const addon = bundle.write_file("House[Test].style", addon_text("House", "Test"));
    COMPARE_RUN(bundle.run({"--import=" + addon}), "It's done.\n", "", 0);
    QCOMPARE(temporary_bundle::contents_of(bundle.addons_directory() + "/House[Test].style"), addon_text("House", "Test"));
    // Importing the same addon again leaves one copy.
    COMPARE_RUN(bundle.run({"--import=" + addon}), "It's done.\n", "", 0);
    QCOMPARE(bundle.installed_addons().count("House[Test].style"), 1);
    QCOMPARE(bundle.installed_addons().size(), 4);
}

void test_store_commands::refuses_a_style_of_a_language_not_installed() {
    installed_bundle bundle;
    QString const addon = bundle.write_file("K[C].style", addon_text("K", "C"));
    COMPARE_RUN(bundle.run({"--import=" + addon}),
                "There is no language 'C', so I cannot import style for it. Please import this language first.\n", "",
                1);
    QCOMPARE(bundle.installed_addons().size(), 3);
}

void test_store_commands::refuses_files_it_cannot_import_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("kind");
    QTest::newRow("dot before the suffix") << "a.b.style" << "extension";
    QTest::newRow("suffix in capitals") << "House[Test].STYLE" << "extension";
    QTest::newRow("text file") << "notes.txt" << "extension";
    QTest::newRow("missing file") << "missing.style" << "missing";
    QTest::newRow("read-only file") << "ReadOnly[Test].style" << "read-only";
}

void test_store_commands::refuses_files_it_cannot_import() {
    QFETCH(QString, file);
    QFETCH(QString, kind);
    installed_bundle bundle;
    QString const path = bundle.work_directory() + "/" + file;
    if (kind != "missing")
        bundle.write_file(file, addon_text("House", "Test"));
    run_options options;
    if (kind == "read-only") {
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadOther);
        options = as_nobody();
    }
    QByteArray const expected = kind == "extension" ? "Invalid extension of file '" + utf8(path) + "'." + usage_hint
                                                    : "No such file '" + utf8(path) + "'." + usage_hint;
    COMPARE_RUN(bundle.run({"--import=" + path}, options), expected, "", 1);
    QCOMPARE(bundle.installed_addons().size(), 3);
}

void test_store_commands::reports_a_style_it_cannot_store() {
    installed_bundle bundle;
    QString const addon = bundle.write_file("House[Test].style", addon_text("House", "Test"));
    QFile::setPermissions(addon, QFile::permissions(addon) | QFile::WriteOther);
    // The styles directory belongs to another user: nothing can be stored there.
    COMPARE_RUN(bundle.run({"--import=" + addon}, as_nobody()),
                "I cannot import style '" + utf8(addon) +
                    "', it has invalid format. For more info please read "
                    "https://style-tarnel.org/user-guide/style-addon-by-hand.\n",
                "", 1);
    QCOMPARE(bundle.installed_addons().size(), 3);
}

void test_store_commands::exports_a_style() {
    installed_bundle bundle;
    QDir(bundle.work_directory()).mkdir("out");
    bundle.write_file("out/Wide[Test].style", "an older export\n");
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--export=out"}), "It's done.\n", "", 0);
    QCOMPARE(temporary_bundle::contents_of(bundle.work_directory() + "/out/Wide[Test].style"), addon_text("Wide", "Test"));
}

void test_store_commands::refuses_to_export_where_it_cannot_write() {
    installed_bundle bundle;
    QDir(bundle.work_directory()).mkdir("closed");
    QString const closed = bundle.work_directory() + "/closed";
    QByteArray const refusal = "I cannot export style to '" + utf8(closed) +
                               "'. Please make sure this directory exists and you have write permissions.\n";
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--export=closed"}, as_nobody()), refusal, "", 1);
    QVERIFY(QDir(closed).isEmpty());
    QString const missing = bundle.work_directory() + "/missing";
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--export=missing"}),
                "I cannot export style to '" + utf8(missing) +
                    "'. Please make sure this directory exists and you have write permissions.\n",
                "", 1);
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Nope", "--export=closed"}),
                "There is no style 'Nope' for language 'Test'." + listing_hint, "", 1);
}

void test_store_commands::deletes_a_style() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--delete"}), "It's done.\n", "", 0);
    QCOMPARE(bundle.installed_addons(), (QStringList{"Plain[Other].style", "Plain[Test].style"}));
}

void test_store_commands::never_deletes_the_only_style_or_the_only_language() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"-l=Other", "-s=Plain", "--delete"}),
                "Sorry, I cannot delete style 'Plain', because it's the only one for language 'Other'. "
                "If you don't need this style - please import at least one other for language 'Other', "
                "and after that you'll be able to delete style 'Plain'.\n",
                "", 1);
    temporary_bundle lone;
    lone.add_plugin(built::test_language_plugin());
    COMPARE_RUN(lone.run({"-l=Test", "--delete"}),
                "Sorry, I cannot delete language 'Test', because it's the only one. If you don't need this "
                "language - please import at least one other, and after that you'll be able to delete "
                "language 'Test'.\n",
                "", 1);
    QCOMPARE(bundle.installed_addons().size(), 3);
    QCOMPARE(QDir(lone.plugins_directory()).entryList(QDir::Files).size(), 1);
}

void test_store_commands::refuses_to_delete_what_is_not_installed() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Nope", "--delete"}),
                "There is no style 'Nope' for language 'Test', so I cannot delete it." + listing_hint, "", 1);
    COMPARE_RUN(bundle.run({"-l=Java", "--delete"}),
                "There is no language 'Java', so I cannot delete it." + listing_hint, "", 1);
    QCOMPARE(bundle.installed_addons().size(), 3);
}

void test_store_commands::deletes_a_language_with_its_styles() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"--lang=Other", "--delete"}), "It's done.\n", "", 0);
    QCOMPARE(bundle.installed_plugins(), QStringList{"libtest-language-plugin.so"});
    QCOMPARE(bundle.installed_addons(), (QStringList{"Plain[Test].style", "Wide[Test].style"}));
}

void test_store_commands::renames_a_style() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--rename=House & Co_2-b"}), "It's done.\n", "", 0);
    QString const renamed = bundle.addons_directory() + "/House & Co_2-b[Test].style";
    QVERIFY(temporary_bundle::contents_of(renamed).startsWith("NAME=House & Co_2-b\nLANGUAGE=Test\n"));
    QVERIFY(!QFile::exists(bundle.addons_directory() + "/Wide[Test].style"));
}

void test_store_commands::refuses_invalid_names_and_taken_file_names() {
    installed_bundle bundle;
    for (auto const& name : {"a/b", "..", "Stil\xc3\xbc"})
        COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", QString("--rename=") + QString::fromUtf8(name)}),
                    QByteArray("Invalid name of style '") + name + "', it must be in English.\n", "", 1);
    QCOMPARE(bundle.installed_addons().size(), 3);
    // No name, or the name of another style of the language: refused before anything changes.
    QStringList const before = bundle.installed_addons();
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--rename"}), "Invalid name of style '', name cannot be empty.\n", "", 1);
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--rename=Plain"}),
                "Invalid name of style 'Plain', such style already exists.\n", "", 1);
    QCOMPARE(bundle.installed_addons(), before);
    QVERIFY(temporary_bundle::contents_of(bundle.addons_directory() + "/Wide[Test].style").startsWith("NAME=Wide\n"));
    // A file of the new name holds another style: the name inside changes, the file name stays.
    QVERIFY(bundle.add_addon("Tidy[Test].style", addon_text("Neat", "Test")));
    COMPARE_RUN(bundle.run({"-l=Test", "-s=Wide", "--rename=Tidy"}), "I cannot rename style 'Wide'.\n", "", 1);
    QVERIFY(temporary_bundle::contents_of(bundle.addons_directory() + "/Wide[Test].style").startsWith("NAME=Tidy\n"));
}

void test_store_commands::updates_the_executable_and_cleans_up_at_the_next_start() {
    installed_bundle bundle;
    QString const update = bundle.work_directory() + "/Style Tarnel";
    QVERIFY(QFile::copy(built::executable(), update));
    bundle.write_file("../bin/notes~", "an editor's backup\n");
    COMPARE_RUN(bundle.run({"--update=Style Tarnel"}), "It's done.\n", "", 0);
    QString const bin = bundle.root() + "/bin/";
    QVERIFY(QFile::exists(bin + "Style Tarnel~"));
    QVERIFY(QFile::exists(update));
    // The next start removes the backup it made, and no other file ending with "~".
    COMPARE_RUN(bundle.run({"-v"}), "Style Tarnel, version 2.0.0\n", "", 0);
    QCOMPARE(QDir(bin).entryList(QDir::Files), (QStringList{"notes~", "Style Tarnel"}));
}

void test_store_commands::refuses_an_update_it_cannot_read() {
    installed_bundle bundle;
    QString const missing = bundle.work_directory() + "/nothing";
    COMPARE_RUN(bundle.run({"--update=nothing"}), "No such file '" + utf8(missing) + "'." + usage_hint, "", 1);
    // A directory without write permission: the executable cannot be moved aside.
    QString const update = bundle.work_directory() + "/Style Tarnel";
    QVERIFY(QFile::copy(built::executable(), update));
    QFile::setPermissions(update, QFile::permissions(update) | QFile::WriteOther);
    COMPARE_RUN(bundle.run({"--update=Style Tarnel"}, as_nobody()),
                "I cannot apply update '" + utf8(update) + "'.\n", "", 1);
    QCOMPARE(QDir(bundle.root() + "/bin").entryList(QDir::Files), QStringList{"Style Tarnel"});
}

void test_store_commands::never_leaves_the_program_without_its_executable() {
    // The running executable as its own update: once moved aside it cannot be copied back from
    // its old path, and the old file must return to its place.
    installed_bundle bundle;
    QByteArray const original = temporary_bundle::contents_of(bundle.executable());
    COMPARE_RUN(bundle.run({"--update=" + bundle.executable()}),
                "I cannot apply update '" + utf8(bundle.executable()) + "'.\n", "", 1);
    QCOMPARE(QDir(bundle.root() + "/bin").entryList(QDir::Files), QStringList{"Style Tarnel"});
    QCOMPARE(temporary_bundle::contents_of(bundle.executable()), original);
    COMPARE_RUN(bundle.run({"-v"}), "Style Tarnel, version 2.0.0\n", "", 0);
}

QTEST_GUILESS_MAIN(test_store_commands)
#include "test_store_commands.moc"
