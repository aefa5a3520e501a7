// Language plugins of the user's own ($XDG_DATA_HOME/style-tarnel/languages) beside the bundle's:
// listed and used together, a user's plugin of a language hiding the bundle's, imports going there
// when the bundle cannot be written, and the bundle's plugins never removed by a user who cannot
// write them (runs as the unprivileged user, since the tests run as root).
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

QString user_plugins_directory(temporary_bundle const& bundle) {
    return bundle.data_home() + "/style-tarnel/languages";
}

// The plugins of the bundle, then the user's.
QString plugins_of(temporary_bundle const& bundle) {
    return QDir(bundle.plugins_directory()).entryList(QDir::Files, QDir::Name).join(' ') + " | user: " +
           QDir(user_plugins_directory(bundle)).entryList(QDir::Files, QDir::Name).join(' ');
}

// The test plugins' tags, as they log them, in the order they were asked to revise a file.
QStringList plugins_that_revised(QString const& log) {
    QStringList tags;
    for (QByteArray const& line : temporary_bundle::contents_of(log).split('\n'))
        if (line.contains(" revise "))
            tags << QString::fromUtf8(line.left(line.indexOf(' ')));
    return tags;
}

}  // namespace

class test_user_plugins : public QObject {
    Q_OBJECT
private slots:
    void answers_data();
    void answers();
};

void test_user_plugins::answers_data() {
    QTest::addColumn<QString>("bundled");  // which of the test plugins the bundle keeps: all, or "Test" alone
    QTest::addColumn<QString>("users");    // the built test plugin put into the user's directory, if any
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("as_nobody");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("err");
    QTest::addColumn<QStringList>("revised_by");  // the plugins' tags; empty: no revision
    QTest::addColumn<QString>("plugins");         // afterwards; empty: unchanged

    QString const done = "It's done.\n";
    QString const both = " Supported programming languages and formatting styles: \n\n Other .. Plain\n\n"
                         " Test ... Plain\n        . Wide\n\n";
    QTest::newRow("the user's plugin of a language revises in place of the bundle's")
        << "all" << "libtwin-language-plugin.so" << QStringList({"-l=Test", "-s=Plain", "--path=a.tst"}) << false
        << 0 << "" << QStringList({"twin-language-plugin"}) << "";
    QTest::newRow("the user's plugin of a language listed once")
        << "all" << "libtwin-language-plugin.so" << QStringList({"--ls"}) << false << 0 << both << QStringList()
        << "";
    QTest::newRow("a language only the user has is listed")
        << "Test" << "libother-language-plugin.so" << QStringList({"--ls"}) << false << 0 << both << QStringList()
        << "";
    QTest::newRow("a language only the user has revises")
        << "Test" << "libother-language-plugin.so" << QStringList({"-l=Other", "-s=Plain", "--path=a.tst"})
        << false << 0 << "" << QStringList({"other-language-plugin"}) << "";
    QTest::newRow("an import goes to the user's directory when the bundle cannot be written")
        << "Test" << "" << QStringList({"--import=libother-language-plugin.so"}) << true << 0 << done
        << QStringList() << "libtest-language-plugin.so | user: libother-language-plugin.so";
    QTest::newRow("an import goes into the bundle that the user can write")
        << "Test" << "" << QStringList({"--import=libother-language-plugin.so"}) << false << 0 << done
        << QStringList() << "libother-language-plugin.so libtest-language-plugin.so | user: ";
    QTest::newRow("the user's own plugin deleted")
        << "Test" << "libother-language-plugin.so" << QStringList({"--lang=Other", "--delete"}) << true << 0 << done
        << QStringList() << "libtest-language-plugin.so | user: ";
    QTest::newRow("a bundled plugin the user cannot write is not deleted")
        << "all" << "" << QStringList({"--lang=Other", "--delete"}) << true << 1
        << "Sorry, I cannot delete language 'Other'.\n" << QStringList() << "";
}

// Faults: the user's plugins not looked for; the bundle's plugin used, or the language listed
// twice, when the user has one of its own; an import refused (or written into the bundle) when the
// bundle cannot be written; a bundled plugin removed by a user who may not.
void test_user_plugins::answers() {
    QFETCH(QString, bundled);
    QFETCH(QString, users);
    QFETCH(QStringList, words);
    QFETCH(bool, as_nobody);
    QFETCH(int, status);
    QFETCH(QString, err);
    QFETCH(QStringList, revised_by);
    QFETCH(QString, plugins);
    installed_bundle bundle;
    if (bundled == "Test")
        QVERIFY(QFile::remove(bundle.plugins_directory() + "/libother-language-plugin.so"));
    if (!users.isEmpty()) {
        QVERIFY(QDir().mkpath(user_plugins_directory(bundle)));
        QVERIFY(QFile::copy(built::test_plugin(users), user_plugins_directory(bundle) + "/" + users));
    }
    // A file to import must be one the user could change (as the command line requires).
    QString const to_import = bundle.work_directory() + "/libother-language-plugin.so";
    QVERIFY(QFile::copy(built::other_language_plugin(), to_import));
    QFile::setPermissions(to_import, QFile::permissions(to_import) | QFile::ReadOther | QFile::WriteOther);
    bundle.write_file("a.tst", "a  b\n");
    QString const log = bundle.home() + "/plugins.log";
    run_options options = as_nobody ? ::as_nobody() : run_options();
    options.extra_environment.insert("TEST_PLUGIN_LOG", log);
    bundle.share_with_unprivileged_user();
    QString const before = plugins_of(bundle);

    run_result const result = bundle.run(words, options);
    QCOMPARE(QString::fromUtf8(result.err), err.isEmpty() && !revised_by.isEmpty()
                                                ? QString::fromUtf8(result.err)  // the run's report
                                                : err);
    QCOMPARE(result.status, status);
    QCOMPARE(plugins_that_revised(log), revised_by);
    QCOMPARE(plugins_of(bundle), plugins.isEmpty() ? before : plugins);
}

QTEST_GUILESS_MAIN(test_user_plugins)
#include "test_user_plugins.moc"
