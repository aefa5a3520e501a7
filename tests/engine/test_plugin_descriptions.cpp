// What plugins say of themselves is kept between runs: a plugin file that changed is asked again,
// one that did not is not loaded, and a cache file that is no cache is no harm.
#include "core/kernel.h"
#include "core/path_to.h"
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

namespace {

QStringList languages_listed_by(temporary_bundle const& bundle, run_options const& options = {}) {
    run_result const listing = bundle.run({"--ls"}, options);
    QStringList languages;
    auto lines = QRegularExpression("^ (\\S+) \\.+ ", QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(listing.out + listing.err));
    while (lines.hasNext())
        languages << lines.next().captured(1);
    return languages;
}

}  // namespace

class test_plugin_descriptions : public QObject {
    Q_OBJECT
private slots:
    void lists_what_the_plugin_files_hold_now_data();
    void lists_what_the_plugin_files_hold_now();
    void lists_a_language_imported_over_a_plugin_this_process_has_loaded();
};

void test_plugin_descriptions::lists_what_the_plugin_files_hold_now_data() {
    QTest::addColumn<QString>("between_runs");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("nothing changed, the plugin is not loaded again") << "throwing" << QStringList{"Other", "Test"};
    QTest::newRow("a plugin file replaced by another plugin") << "replaced" << QStringList{"Other"};
    QTest::newRow("a plugin file removed") << "removed" << QStringList{"Other"};
    QTest::newRow("a cache file that is no cache") << "broken cache" << QStringList{"Other", "Test"};
}

void test_plugin_descriptions::lists_what_the_plugin_files_hold_now() {
    QFETCH(QString, between_runs);
    QFETCH(QStringList, listed);
    installed_bundle bundle;
    QCOMPARE(languages_listed_by(bundle), (QStringList{"Other", "Test"}));

    QString const test_plugin = bundle.plugins_directory() + "/libtest-language-plugin.so";
    run_options options;
    if (between_runs == "throwing") {
        // Loaded, the plugin would count as none: its language name throws.
        options.extra_environment.insert("TEST_PLUGIN_THROWING", "test-language-plugin");
    } else if (between_runs == "replaced") {
        QVERIFY(QFile::remove(test_plugin));
        QVERIFY(bundle.add_plugin(built::other_language_plugin(), "libtest-language-plugin.so"));
        QVERIFY(QFile::remove(bundle.plugins_directory() + "/libother-language-plugin.so"));
    } else if (between_runs == "removed") {
        QVERIFY(QFile::remove(test_plugin));
    } else {
        QStringList const files = QDir(bundle.cache_home() + "/style-tarnel").entryList(QDir::Files);
        QVERIFY(!files.isEmpty());
        for (auto const& file : files) {
            QFile broken(bundle.cache_home() + "/style-tarnel/" + file);
            QVERIFY(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
            broken.write("[\"not\", {\"a\": \"cache\"}]");
        }
    }
    QCOMPARE(languages_listed_by(bundle, options), listed);
}

// A process keeps a plugin it loaded under its file name, however the file changes afterwards:
// asked again by that name, it would describe the replaced plugin.
void test_plugin_descriptions::lists_a_language_imported_over_a_plugin_this_process_has_loaded() {
    install_test_languages(path_to().plugins_directory(), path_to().addons_directory());
    std::vector<std::string> const before = kernel().supported_programming_languages();
    QCOMPARE(before, (std::vector<std::string>{"Other", "Test"}));
    QTemporaryDir outside;
    QString const other_as_test = outside.filePath("libtest-language-plugin.so");
    QVERIFY(QFile::copy(built::other_language_plugin(), other_as_test));
    QCOMPARE(kernel().import_language_from(other_as_test.toStdString()), std::string("Other"));
    std::vector<std::string> const after = kernel().supported_programming_languages();
    QCOMPARE(after, (std::vector<std::string>{"Other", "Other"}));
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_plugin_descriptions)
#include "test_plugin_descriptions.moc"
