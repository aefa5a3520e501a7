// Removing installed languages (with their styles) and styles, and renaming a style: results and
// the files of both directories afterwards, write-protected files and directories included.
#include "core/kernel.h"
#include "tests/harness/built_files.h"
#include "tests/harness/test_main.h"
#include "tests/store/helpers/store_fixture.h"

Q_DECLARE_METATYPE(std::string)

namespace {

using addon_files = QMap<QString, QByteArray>;

void install(addon_files const& addons) {
    for (auto it = addons.begin(); it != addons.end(); ++it)
        fixture::install_addon(it.key(), it.value());
}

QStringList sorted(QStringList list) {
    list.sort();
    return list;
}

QString test_plugin_name() { return QFileInfo(built::test_language_plugin()).fileName(); }
QString other_plugin_name() { return QFileInfo(built::other_language_plugin()).fileName(); }

}  // namespace

Q_DECLARE_METATYPE(addon_files)

class test_delete_rename : public QObject {
    Q_OBJECT
private slots:
    void init() { fixture::clear_bundle(); }
    void cleanupTestCase() { fixture::clear_bundle(); }

    void deletes_a_language_with_its_styles_data();
    void deletes_a_language_with_its_styles();
    void keeps_a_language_that_cannot_be_removed_data();
    void keeps_a_language_that_cannot_be_removed();
    void deletes_a_style_data();
    void deletes_a_style();
    void fails_to_delete_past_an_unreadable_addon();
    void renames_a_style_data();
    void renames_a_style();
};

void test_delete_rename::deletes_a_language_with_its_styles_data() {
    QTest::addColumn<QStringList>("plugins");
    QTest::addColumn<addon_files>("addons");
    QTest::addColumn<std::string>("language");
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<QStringList>("plugins_left");
    QTest::addColumn<QStringList>("addons_left");
    addon_files const both{{"a[Test].style", fixture::addon("a", "Test")},
                           {"b[Test].style", fixture::addon("b", "Test")},
                           {"o[Other].style", fixture::addon("o", "Other")}};
    QTest::newRow("plugin and its addons")
        << QStringList{built::test_language_plugin(), built::other_language_plugin()} << both
        << std::string("Test") << true << QStringList{other_plugin_name()}
        << QStringList{"o[Other].style"};
    QTest::newRow("a twin of the same name goes too")
        << QStringList{built::test_language_plugin(), built::twin_language_plugin(),
                       built::other_language_plugin()}
        << both << std::string("Test") << true << QStringList{other_plugin_name()}
        << QStringList{"o[Other].style"};
    QTest::newRow("unknown language: nothing changes")
        << QStringList{built::test_language_plugin()} << both << std::string("Nobody") << true
        << QStringList{test_plugin_name()} << sorted(both.keys());
    QTest::newRow("a stray addon file stops removing its styles")
        << QStringList{built::test_language_plugin()}
        << addon_files{{"0 notes.txt", "x"}, {"a[Test].style", fixture::addon("a", "Test")}}
        << std::string("Test") << false << QStringList{}
        << QStringList{"0 notes.txt", "a[Test].style"};
}

void test_delete_rename::deletes_a_language_with_its_styles() {
    QFETCH(QStringList, plugins);
    QFETCH(addon_files, addons);
    QFETCH(std::string, language);
    QFETCH(bool, deleted);
    QFETCH(QStringList, plugins_left);
    QFETCH(QStringList, addons_left);
    for (auto const& plugin : plugins)
        fixture::install_plugin(plugin);
    install(addons);
    QCOMPARE(kernel().delete_language_by(language), deleted);
    QCOMPARE(fixture::files_in(fixture::plugins_directory()), plugins_left);
    QCOMPARE(fixture::files_in(fixture::addons_directory()), addons_left);
}

void test_delete_rename::keeps_a_language_that_cannot_be_removed_data() {
    QTest::addColumn<bool>("protect_the_directory");
    QTest::newRow("write-protected plugin file") << false;
    QTest::newRow("write-protected plugins directory") << true;
}

void test_delete_rename::keeps_a_language_that_cannot_be_removed() {
    QFETCH(bool, protect_the_directory);
    fixture::install_plugin(built::test_language_plugin());
    fixture::install_addon("a[Test].style", fixture::addon("a", "Test"));
    QString const protected_path = protect_the_directory
                                       ? fixture::plugins_directory()
                                       : fixture::plugins_directory() + "/" + test_plugin_name();
    QFile::Permissions const before = QFile::permissions(protected_path);
    QFile::setPermissions(protected_path, before & ~(QFile::WriteOwner | QFile::WriteUser |
                                                     QFile::WriteGroup | QFile::WriteOther));
    bool const refused = fixture::as_unprivileged_user([] {
        return kernel().supported_programming_languages().size() == 1 &&
               !kernel().delete_language_by("Test");
    });
    QFile::setPermissions(protected_path, before);
    QVERIFY(refused);
    QCOMPARE(fixture::files_in(fixture::plugins_directory()), QStringList{test_plugin_name()});
    QCOMPARE(fixture::files_in(fixture::addons_directory()), QStringList{"a[Test].style"});
}

void test_delete_rename::deletes_a_style_data() {
    QTest::addColumn<addon_files>("addons");
    QTest::addColumn<std::string>("style");
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<QStringList>("addons_left");
    QTest::newRow("the first of two with that name")
        << addon_files{{"x1.style", fixture::addon("x", "Test")},
                       {"x2.style", fixture::addon("x", "Test")}}
        << std::string("x") << true << QStringList{"x2.style"};
    QTest::newRow("a stray file is passed over")
        << addon_files{{"0 notes.txt", "x"}, {"a[Test].style", fixture::addon("a", "Test")}}
        << std::string("a") << true << QStringList{"0 notes.txt"};
    QTest::newRow("no such style: success, nothing removed")
        << addon_files{{"a[Test].style", fixture::addon("a", "Test")}} << std::string("b") << true
        << QStringList{"a[Test].style"};
    QTest::newRow("same style of another language stays")
        << addon_files{{"a[Other].style", fixture::addon("a", "Other")}} << std::string("a") << true
        << QStringList{"a[Other].style"};
    QTest::newRow("a CR LF name carries its carriage return")
        << addon_files{{"a[Test].style", fixture::addon("a", "Test", {}, "\r\n")}}
        << std::string("a") << true << QStringList{"a[Test].style"};
}

void test_delete_rename::deletes_a_style() {
    QFETCH(addon_files, addons);
    QFETCH(std::string, style);
    QFETCH(bool, deleted);
    QFETCH(QStringList, addons_left);
    install(addons);
    QCOMPARE(kernel().delete_style_by(style, "Test"), deleted);
    QCOMPARE(fixture::files_in(fixture::addons_directory()), addons_left);
}

void test_delete_rename::fails_to_delete_past_an_unreadable_addon() {
    // The directory and the wanted addon are open to everybody, so only reading can stop the
    // removal.
    QFile::setPermissions(fixture::addons_directory(), QFile::Permissions(0x7777));
    fixture::install_addon("0 secret.style", fixture::addon("s", "Test"));
    fixture::install_addon("a[Test].style", fixture::addon("a", "Test"));
    QFile::setPermissions(fixture::addons_directory() + "/a[Test].style", QFile::Permissions(0x6666));
    QString const secret = fixture::addons_directory() + "/0 secret.style";
    QFile::setPermissions(secret, QFile::ReadOwner | QFile::WriteOwner);
    QVERIFY(fixture::as_unprivileged_user([] { return !kernel().delete_style_by("a", "Test"); }));
    QCOMPARE(fixture::files_in(fixture::addons_directory()),
             (QStringList{"0 secret.style", "a[Test].style"}));

    QFile::setPermissions(secret, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    QVERIFY(fixture::as_unprivileged_user([] { return kernel().delete_style_by("a", "Test"); }));
    QCOMPARE(fixture::files_in(fixture::addons_directory()), QStringList{"0 secret.style"});
}

void test_delete_rename::renames_a_style_data() {
    QTest::addColumn<addon_files>("addons");
    QTest::addColumn<std::string>("new_name");
    QTest::addColumn<bool>("renamed");
    QTest::addColumn<addon_files>("afterwards");
    QByteArray const a = fixture::addon("a", "Test", fixture::section("block", "begin SOME end"));
    QByteArray const b = fixture::addon("b", "Test", fixture::section("block", "begin SOME end"));
    QTest::newRow("inside and in its file name")
        << addon_files{{"a[Test].style", a}} << std::string("b") << true
        << addon_files{{"b[Test].style", b}};
    QTest::newRow("an odd file name gets the rule's")
        << addon_files{{"odd.style", a}} << std::string("b") << true
        << addon_files{{"b[Test].style", b}};
    QTest::newRow("a file of the new name stands: renamed inside only")
        << addon_files{{"a[Test].style", a}, {"b[Test].style", "kept"}} << std::string("b") << false
        << addon_files{{"a[Test].style", b}, {"b[Test].style", "kept"}};
    QTest::newRow("not installed: success, nothing changed")
        << addon_files{{"c[Test].style", fixture::addon("c", "Test")}} << std::string("b") << true
        << addon_files{{"c[Test].style", fixture::addon("c", "Test")}};
    QTest::newRow("a stray file: failure, nothing changed")
        << addon_files{{"0 notes.txt", "x"}, {"a[Test].style", a}} << std::string("b") << false
        << addon_files{{"0 notes.txt", "x"}, {"a[Test].style", a}};
    QTest::newRow("a new name that leaves the directory changes nothing")
        << addon_files{{"a[Test].style", a}} << std::string("../b") << false
        << addon_files{{"a[Test].style", a}};
}

void test_delete_rename::renames_a_style() {
    QFETCH(addon_files, addons);
    QFETCH(std::string, new_name);
    QFETCH(bool, renamed);
    QFETCH(addon_files, afterwards);
    install(addons);
    QCOMPARE(kernel().rename_style("a", "Test", new_name), renamed);
    QCOMPARE(fixture::files_in(fixture::addons_directory()), afterwards.keys());
    for (auto it = afterwards.begin(); it != afterwards.end(); ++it)
        QCOMPARE(fixture::contents_of(fixture::addons_directory() + "/" + it.key()), it.value());
    QDir bundle(fixture::addons_directory());
    bundle.cdUp();
    QCOMPARE(fixture::files_in(bundle.path()), (QStringList{"languages", "styles"}));
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_delete_rename)
#include "test_delete_rename.moc"
