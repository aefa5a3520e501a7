// Change records: when a file counts as unchanged since its last revision, where the records are
// kept, and which records removing a path forgets.
#include "core/product.h"
#include "core/settings_keys.h"
#include "engine/change_records.h"
#include "tests/engine/helpers/engine_fixture.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

using namespace engine_test;

class test_change_records : public QObject {
    Q_OBJECT
private slots:
    void init();
    void tells_unchanged_files_data();
    void tells_unchanged_files();
    void keeps_records_apart_from_the_window_settings();
    void removing_a_path_forgets_its_records_data();
    void removing_a_path_forgets_its_records();
    void keys_a_relative_path_as_the_file_it_names();

private:
    QSettings records() const {
        return QSettings(product::organisation_name, settings_key::change_records_store);
    }
};

void test_change_records::init() { clear_bundle(); }

void test_change_records::tells_unchanged_files_data() {
    QTest::addColumn<QString>("after_saving");
    QTest::addColumn<bool>("unchanged");
    QTest::newRow("never revised") << "forget the record" << false;
    QTest::newRow("revised and left alone") << "nothing" << true;
    QTest::newRow("touched in the second of its revision") << "touch in the same second" << true;
    QTest::newRow("touched after its revision") << "touch a second later" << false;
    QTest::newRow("asked with another style") << "ask with another style" << false;
    QTest::newRow("asked with another language") << "ask with another language" << false;
    QTest::newRow("addon saved after the revision") << "save the addon later" << false;
    QTest::newRow("record of three values") << "store three values" << false;
    QTest::newRow("record of four values, one invalid") << "store an invalid value" << false;
}

void test_change_records::tells_unchanged_files() {
    QFETCH(QString, after_saving);
    QFETCH(bool, unchanged);
    QTemporaryDir sources;
    QString const source = write_file(sources.filePath("a.tst"), "text");
    QString const addon = install_addon("Compact[Test].style", addon_text());
    qint64 const past = now() - 100;
    set_modification_time(source, past);
    set_modification_time(addon, past);

    save_info_about_changes_of(*engine_test::records_store()).this_source_file(source, "Test", "Compact", addon);
    QString const key = source.mid(1);
    QVariantList const saved = records().value(key).toList();
    QCOMPARE(saved.size(), 4);
    QVERIFY(qAbs(saved[0].toLongLong() - now()) <= 1);
    QCOMPARE(saved[1].toString(), QString("Test"));
    QCOMPARE(saved[2].toString(), QString("Compact"));
    QCOMPARE(saved[3].toLongLong(), past);

    QString language = "Test", style = "Compact";
    if (after_saving == "forget the record")
        records().remove(key);
    else if (after_saving == "touch in the same second")
        set_modification_time(source, saved[0].toLongLong());
    else if (after_saving == "touch a second later")
        set_modification_time(source, saved[0].toLongLong() + 1);
    else if (after_saving == "ask with another style")
        style = "Wide";
    else if (after_saving == "ask with another language")
        language = "Other";
    else if (after_saving == "save the addon later")
        set_modification_time(addon, past + 1);
    else if (after_saving == "store three values")
        records().setValue(key, QVariantList{now(), "Test", "Compact"});
    else if (after_saving == "store an invalid value")
        records().setValue(key, QVariantList{now(), "Test", QVariant(), now()});
    QCOMPARE(this_source_file(*engine_test::records_store()).was_not_changed(source, language, style, addon), unchanged);
}

void test_change_records::keeps_records_apart_from_the_window_settings() {
    QTemporaryDir sources;
    QString const source = write_file(sources.filePath("a.tst"), "text");
    QString const addon = install_addon("Compact[Test].style", addon_text());
    save_info_about_changes_of(*engine_test::records_store()).this_source_file(source, "Test", "Compact", addon);

    QVERIFY(!QSettings().contains(source.mid(1)));
    QVERIFY(QFile::exists(records_file()));
    QVERIFY(contents_of(records_file()).contains("a.tst"));
    QVERIFY(records_file() != QSettings().fileName());
}

void test_change_records::removing_a_path_forgets_its_records_data() {
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QStringList>("kept");
    QStringList const all{"a/lib/x.tst", "a/lib/sub/w.tst", "a/lib2/y.tst", "a/other/z.tst"};
    QTest::newRow("a file") << "a/lib/x.tst" << QStringList{"a/lib/sub/w.tst", "a/lib2/y.tst", "a/other/z.tst"};
    QTest::newRow("a directory, and siblings that begin with its name")
        << "a/lib" << QStringList{"a/other/z.tst"};
    QTest::newRow("a missing path") << "a/missing" << all;
}

void test_change_records::removing_a_path_forgets_its_records() {
    QFETCH(QString, removed);
    QFETCH(QStringList, kept);
    QTemporaryDir sources;
    QDir const root(sources.path());
    QString const addon = install_addon("Compact[Test].style", addon_text());
    for (auto const& name : {"a/lib/x.tst", "a/lib/sub/w.tst", "a/lib2/y.tst", "a/other/z.tst"}) {
        write_file(root.filePath(name), "text");
        save_info_about_changes_of(*engine_test::records_store()).this_source_file(root.filePath(name), "Test", "Compact", addon);
    }
    remove_info_about_changes_of(*engine_test::records_store()).this_path(root.filePath(removed));

    QStringList left;
    for (auto const& name : {"a/lib/x.tst", "a/lib/sub/w.tst", "a/lib2/y.tst", "a/other/z.tst"})
        if (records().contains(root.filePath(name).mid(1)))
            left << name;
    QCOMPARE(left, kept);
}

// The engine's own callers may name a file relatively: its record is the file's, whichever
// directory it was named from.
void test_change_records::keys_a_relative_path_as_the_file_it_names() {
    QTemporaryDir sources;
    QString const source = write_file(sources.filePath("a.tst"), "text");
    QString const addon = install_addon("Compact[Test].style", addon_text());
    set_modification_time(source, now() - 100);
    QString const before = QDir::currentPath();
    QDir::setCurrent(sources.path());
    save_info_about_changes_of(*engine_test::records_store()).this_source_file("./x/../a.tst", "Test", "Compact", addon);
    QDir::setCurrent(before);
    QVERIFY(this_source_file(*engine_test::records_store()).was_not_changed(source, "Test", "Compact", addon));
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_change_records)
#include "test_change_records.moc"
