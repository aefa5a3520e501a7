// Which files a task's paths stand for, which directly named files a task refuses, and how a
// path a user typed becomes absolute.
#include "engine/file_collection.h"
#include "core/transform.h"
#include "tests/engine/helpers/engine_fixture.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace engine_test;

class test_file_collection : public QObject {
    Q_OBJECT
private slots:
    void splits_by_a_separator_data();
    void splits_by_a_separator();
    void collects_files_of_the_extensions_data();
    void collects_files_of_the_extensions();
    void refuses_directly_named_files_of_other_extensions_data();
    void refuses_directly_named_files_of_other_extensions();
    void makes_typed_paths_absolute_data();
    void makes_typed_paths_absolute();

private:
    QTemporaryDir sources;
};

void test_file_collection::splits_by_a_separator_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("empty text adds nothing") << "" << QStringList{};
    QTest::newRow("one piece") << "cc" << QStringList{"cc"};
    QTest::newRow("three pieces") << "c cc h" << QStringList{"c", "cc", "h"};
    QTest::newRow("two separators keep an empty piece") << "c  h" << QStringList{"c", "", "h"};
}

void test_file_collection::splits_by_a_separator() {
    QFETCH(QString, text);
    QFETCH(QStringList, parts);
    std::vector<std::string> got{"earlier"};
    split_by_string(got, text.toStdString(), " ");
    QStringList got_list;
    for (auto const& part : got)
        got_list << QString::fromStdString(part);
    QCOMPARE(got_list, QStringList{"earlier"} + parts);
}

void test_file_collection::collects_files_of_the_extensions_data() {
    QTest::addColumn<QStringList>("paths");  // relative to the sources; "-" stands for none
    QTest::addColumn<QString>("extensions");
    QTest::addColumn<QStringList>("expected");  // relative to the sources, sorted
    QTest::newRow("no paths") << QStringList{} << "tst" << QStringList{};
    QTest::newRow("a directory, at any depth")
        << QStringList{"tree"} << "tst" << QStringList{"tree/a.tst", "tree/sub/c.tst", "tree/sub/deeper/d.tst"};
    QTest::newRow("an extension given twice counts once")
        << QStringList{"tree"} << "tst tst" << QStringList{"tree/a.tst", "tree/sub/c.tst", "tree/sub/deeper/d.tst"};
    QTest::newRow("several spaces between extensions")
        << QStringList{"tree"} << "tst   test" << QStringList{"tree/a.tst", "tree/b.test", "tree/sub/c.tst", "tree/sub/deeper/d.tst"};
    QTest::newRow("a file named directly is taken whatever its extension")
        << QStringList{"tree/other.txt"} << "tst" << QStringList{"tree/other.txt"};
    QTest::newRow("a missing path gives nothing") << QStringList{"missing.tst"} << "tst" << QStringList{};
    QTest::newRow("a path with spaces") << QStringList{"with space"} << "tst" << QStringList{"with space/e f.tst"};
    QTest::newRow("symbolic links are not followed")
        << QStringList{"links"} << "tst" << QStringList{"links/real.tst"};
}

void test_file_collection::collects_files_of_the_extensions() {
    QFETCH(QStringList, paths);
    QFETCH(QString, extensions);
    QFETCH(QStringList, expected);
    QDir const root(sources.path());
    for (auto const& name : {"tree/a.tst", "tree/b.test", "tree/other.txt", "tree/sub/c.tst",
                             "tree/sub/deeper/d.tst", "with space/e f.tst", "links/real.tst",
                             "elsewhere/target.tst", "elsewhere/dir/inner.tst"})
        write_file(root.filePath(name), "x");
    QFile::link(root.filePath("elsewhere/target.tst"), root.filePath("links/link.tst"));
    QFile::link(root.filePath("elsewhere/dir"), root.filePath("links/dir"));

    QStringList given;
    for (auto const& path : paths)
        given << root.filePath(path);
    QStringList got = obtain_full_file_paths_from(given).with(extensions);
    for (auto& path : got) {
        QVERIFY2(QDir::isAbsolutePath(path), qPrintable(path));
        path = root.relativeFilePath(path);
    }
    got.sort();
    QCOMPARE(got, expected);
}

void test_file_collection::refuses_directly_named_files_of_other_extensions_data() {
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QString>("extensions");
    QTest::addColumn<bool>("refused");
    QTest::newRow("a file of the extensions") << QStringList{"a.tst"} << "c tst" << false;
    QTest::newRow("a file of another extension") << QStringList{"a.tst", "b.txt"} << "tst" << true;
    QTest::newRow("extensions compare exactly") << QStringList{"c.TST"} << "tst" << true;
    QTest::newRow("directories are not checked") << QStringList{"dir.txt"} << "tst" << false;
    QTest::newRow("missing paths are not checked") << QStringList{"missing.txt"} << "tst" << false;
}

void test_file_collection::refuses_directly_named_files_of_other_extensions() {
    QFETCH(QStringList, paths);
    QFETCH(QString, extensions);
    QFETCH(bool, refused);
    QDir const root(sources.path());
    for (auto const& name : {"a.tst", "b.txt", "c.TST", "dir.txt/inner.txt"})
        write_file(root.filePath(name), "x");
    QStringList given;
    for (auto const& path : paths)
        given << root.filePath(path);
    QCOMPARE(there_are_some(given).with_extensions_that_not_corresponds_to(extensions.toStdString()),
             refused);
}

void test_file_collection::makes_typed_paths_absolute_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("absolute");
    QString const home = QDir::homePath();
    QString const here = QDir::currentPath();
    QTest::newRow("home") << "~" << home;
    QTest::newRow("below home") << "~/src/main.c" << home + "/src/main.c";
    QTest::newRow("relative") << "src/../lib/x.c" << here + "/lib/x.c";
    QTest::newRow("absolute, normalised") << "/usr//lib/./x" << "/usr/lib/x";
    QTest::newRow("below another user's home") << "~root/x" << "/root/x";
    QTest::newRow("a tilde of no user") << "~no-such-user-here/x" << here + "/~no-such-user-here/x";
}

void test_file_collection::makes_typed_paths_absolute() {
    QFETCH(QString, typed);
    QFETCH(QString, absolute);
    QCOMPARE(transform(typed).to_absolute(), absolute);
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_file_collection)
#include "test_file_collection.moc"
