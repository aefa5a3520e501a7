// Installing plugins and addons by copying them into the bundle, and exporting an installed
// addon: results, and the files in both directories before and after; an import that fails
// keeps the file it would have replaced.
#include "core/kernel.h"
#include "tests/harness/built_files.h"
#include "tests/harness/test_main.h"
#include "tests/store/helpers/store_fixture.h"

#include <QTemporaryDir>

Q_DECLARE_METATYPE(std::string)

namespace {

// The source and the installed addon are readable, so only the replacing can stop the import.
bool imports_nothing_though_readable(QString const& path) {
    return kernel().supported_formatting_styles_for("Test")->size() == 1 &&
           QFile(path).open(QIODevice::ReadOnly) &&
           kernel().import_style_from(path.toStdString(), "Test").is_empty();
}

}  // namespace

class test_import_export : public QObject {
    Q_OBJECT
private slots:
    void init() {
        fixture::clear_bundle();
        outside.reset(new QTemporaryDir(QDir::currentPath() + "/outside-XXXXXX"));
    }
    void cleanupTestCase() { fixture::clear_bundle(); }

    void imports_a_language_data();
    void imports_a_language();
    void imports_a_style_for_a_language_data();
    void imports_a_style_for_a_language();
    void imports_a_style_by_its_own_language();
    void keeps_the_old_addon_when_an_import_cannot_replace_it();
    void exports_a_style_data();
    void exports_a_style();
    void exports_over_a_link_not_through_it();
    void finds_the_path_of_an_addon();

private:
    QString outside_path(QString const& name) const { return outside->path() + "/" + name; }
    std::unique_ptr<QTemporaryDir> outside;
};

void test_import_export::imports_a_language_data() {
    QTest::addColumn<QString>("source");      // a built plugin, or file content when not a path
    QTest::addColumn<QString>("name");        // its file name where it is imported from
    QTest::addColumn<QString>("installed");   // a plugin standing under that name before
    QTest::addColumn<std::string>("language");
    QTest::addColumn<QString>("afterwards");  // what stands under that name after
    QTest::newRow("language plugin") << built::test_language_plugin() << "libt.so" << QString()
                                     << std::string("Test") << built::test_language_plugin();
    QTest::newRow("replaces a plugin of the same file name")
        << built::test_language_plugin() << "libt.so" << built::other_language_plugin()
        << std::string("Test") << built::test_language_plugin();
    QTest::newRow("not a plugin: the old file is kept")
        << "text, not a library" << "libt.so" << built::other_language_plugin() << std::string()
        << built::other_language_plugin();
    QTest::newRow("Qt plugin without the interface: nothing installed")
        << built::plugin_without_interface() << "libt.so" << QString() << std::string() << QString();
    QTest::newRow("library that is no plugin: the old file is kept")
        << built::library_without_plugin() << "libt.so" << built::test_language_plugin()
        << std::string() << built::test_language_plugin();
    QTest::newRow("no library name") << built::test_language_plugin() << "test.plugin" << QString()
                                     << std::string() << QString();
}

void test_import_export::imports_a_language() {
    QFETCH(QString, source);
    QFETCH(QString, name);
    QFETCH(QString, installed);
    QFETCH(std::string, language);
    QFETCH(QString, afterwards);
    QString const path = outside_path(name);
    if (QFileInfo(source).isAbsolute())
        QFile::copy(source, path);
    else
        fixture::write_file(path, source.toUtf8());
    if (!installed.isEmpty())
        fixture::install_plugin(installed, name);

    QCOMPARE(kernel().import_language_from(path.toStdString()), language);
    QStringList const expected = afterwards.isEmpty() ? QStringList{} : QStringList{name};
    QCOMPARE(fixture::files_in(fixture::plugins_directory()), expected);
    if (!afterwards.isEmpty())
        QCOMPARE(fixture::contents_of(fixture::plugins_directory() + "/" + name),
                 fixture::contents_of(afterwards));
    QCOMPARE(fixture::contents_of(path).isEmpty(), false);  // The source stays where it was.
}

void test_import_export::imports_a_style_for_a_language_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::string>("style");
    QTest::addColumn<std::string>("language");
    QTest::addColumn<bool>("installed");
    QTest::newRow("of that language") << fixture::addon("a", "Test") << std::string("a")
                                      << std::string("Test") << true;
    QTest::newRow("of another language: nothing copied, its language told")
        << fixture::addon("a", "Other") << std::string("a") << std::string("Other") << false;
    QTest::newRow("no addon: nothing copied") << QByteArray("NAME=a\n") << std::string()
                                              << std::string() << false;
}

void test_import_export::imports_a_style_for_a_language() {
    QFETCH(QByteArray, content);
    QFETCH(std::string, style);
    QFETCH(std::string, language);
    QFETCH(bool, installed);
    QString const path = outside_path("mine.style");
    fixture::write_file(path, content);
    for (int time = 0; time < 2; ++time) {  // Twice: still one copy.
        style_description const d = kernel().import_style_from(path.toStdString(), "Test");
        QCOMPARE(d.style, style);
        QCOMPARE(d.language, language);
    }
    QCOMPARE(fixture::files_in(fixture::addons_directory()),
             installed ? QStringList{"mine.style"} : QStringList{});
    if (installed)
        QCOMPARE(fixture::contents_of(fixture::addons_directory() + "/mine.style"), content);
}

void test_import_export::imports_a_style_by_its_own_language() {
    fixture::install_plugin(built::test_language_plugin());
    QString const known = outside_path("k.style");
    QString const unknown = outside_path("u.style");
    QString const broken = outside_path("b.style");
    fixture::write_file(known, fixture::addon("k", "Test"));
    fixture::write_file(unknown, fixture::addon("u", "Nobody"));
    fixture::write_file(broken, "LANGUAGE=Test\n");

    QVERIFY((kernel().import_style_from(known.toStdString()) == style_description{"k", "Test"}));
    QVERIFY((kernel().import_style_from(unknown.toStdString()) == style_description{"u", "Nobody"}));
    QVERIFY(kernel().import_style_from(broken.toStdString()).is_empty());
    QVERIFY(kernel().import_style_from(outside_path("missing.style").toStdString()).is_empty());
    QCOMPARE(fixture::files_in(fixture::addons_directory()), QStringList{"k.style"});
}

void test_import_export::keeps_the_old_addon_when_an_import_cannot_replace_it() {
    QString const path = outside_path("a[Test].style");
    fixture::write_file(path, fixture::addon("a", "Test", fixture::section("block", "new")));
    QByteArray const old = fixture::addon("a", "Test", fixture::section("block", "old"));
    fixture::install_addon("a[Test].style", old);
    QString const installed = fixture::addons_directory() + "/a[Test].style";

    // A write-protected addon is the user's to keep.
    QFile::setPermissions(installed, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadOther);
    QFile::setPermissions(outside->path(), QFile::permissions(outside->path()) | QFile::ExeOther);
    QVERIFY(fixture::as_unprivileged_user(
        [&] { return imports_nothing_though_readable(path); }));
    QCOMPARE(fixture::contents_of(installed), old);

    // A directory the user cannot write to.
    QFile::setPermissions(installed, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    QFile::Permissions const directory = QFile::permissions(fixture::addons_directory());
    QFile::setPermissions(fixture::addons_directory(), QFile::ReadOwner | QFile::ExeOwner |
                                                           QFile::ReadOther | QFile::ExeOther);
    bool const refused = fixture::as_unprivileged_user(
        [&] { return imports_nothing_though_readable(path); });
    QFile::setPermissions(fixture::addons_directory(), directory);
    QVERIFY(refused);
    QCOMPARE(fixture::contents_of(installed), old);
    QCOMPARE(fixture::files_in(fixture::addons_directory()), QStringList{"a[Test].style"});
}

void test_import_export::exports_a_style_data() {
    QTest::addColumn<QByteArray>("installed");
    QTest::addColumn<std::string>("style");
    QTest::addColumn<QString>("destination");
    QTest::addColumn<bool>("exported");
    QTest::addColumn<bool>("written");
    QByteArray const addon = fixture::addon("a", "Test", fixture::section("block", "begin SOME end"));
    QTest::newRow("installed style") << addon << std::string("a") << "a[Test].style" << true << true;
    QTest::newRow("over an existing file") << addon << std::string("a") << "existing" << true << true;
    QTest::newRow("style not installed: success, no file")
        << addon << std::string("b") << "b[Test].style" << true << false;
    QTest::newRow("into a missing directory") << addon << std::string("a") << "no/such/a.style"
                                              << false << false;
    QTest::newRow("style name that leaves the directory")
        << fixture::addon("../up", "Test") << std::string("../up") << "x.style" << false << false;
    QTest::newRow("destination that names no file") << addon << std::string("a") << "sub/.." << false
                                                    << false;
}

void test_import_export::exports_a_style() {
    QFETCH(QByteArray, installed);
    QFETCH(std::string, style);
    QFETCH(QString, destination);
    QFETCH(bool, exported);
    QFETCH(bool, written);
    fixture::install_addon("a[Test].style", installed);
    fixture::write_file(outside_path("existing"), "old content");
    QDir(outside->path()).mkdir("sub");
    QString const path = outside_path(destination);
    QCOMPARE(kernel().export_style(style, "Test", path.toStdString()), exported);
    if (written)
        QCOMPARE(fixture::contents_of(path), installed);
    else
        QVERIFY(!QFileInfo(path).isFile());
    QStringList const expected_outside =
        written && destination != "existing" ? QStringList{destination, "existing", "sub"}
                                             : QStringList{"existing", "sub"};
    QCOMPARE(fixture::files_in(outside->path()), expected_outside);
    QDir up(outside->path());
    up.cdUp();
    QVERIFY(!QFileInfo(up.filePath("up[Test].style")).exists());
    QCOMPARE(fixture::files_in(fixture::addons_directory()), QStringList{"a[Test].style"});
}

void test_import_export::exports_over_a_link_not_through_it() {
    QByteArray const addon = fixture::addon("a", "Test");
    fixture::install_addon("a[Test].style", addon);
    QTemporaryDir const elsewhere(QDir::currentPath() + "/elsewhere-XXXXXX");
    QString const target = elsewhere.path() + "/kept";
    fixture::write_file(target, "the user's own file");
    QString const link = outside_path("a[Test].style");
    QVERIFY(QFile::link(target, link));

    QVERIFY(kernel().export_style("a", "Test", link.toStdString()));
    QVERIFY(!QFileInfo(link).isSymLink());
    QCOMPARE(fixture::contents_of(link), addon);
    QCOMPARE(fixture::contents_of(target), QByteArray("the user's own file"));
    QCOMPARE(fixture::files_in(elsewhere.path()), QStringList{"kept"});
}

void test_import_export::finds_the_path_of_an_addon() {
    fixture::install_addon("0 notes.txt", "not an addon");
    fixture::install_addon("odd.style", fixture::addon("a", "Test"));
    kernel const k;
    QCOMPARE(QString::fromStdString(k.full_path_to_style_addon_by("a", "Test")),
             fixture::addons_directory() + "/odd.style");
    QCOMPARE(k.full_path_to_style_addon_by("a", "Other"), std::string());
    // Exporting refuses where the lists are absent.
    QVERIFY(!k.export_style("a", "Test", outside_path("a.style").toStdString()));
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_import_export)
#include "test_import_export.moc"
