// Every shipped style: each form of its addon is a fixed point of the options inferred from it,
// its golden input comes out as its golden expected file (with only white space changed, and
// unchanged when revised again), and no two styles of a language revise the input alike.
// Set STYLE_TARNEL_WRITE_GOLDEN=1 to write a missing expected file (then read it before committing).
#include "helpers/our_plugins.h"

#include "c_language.h"
#include "core/style_addon.h"
#include "cpp_language.h"
#include "revision.h"
#include "tests/harness/built_files.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <set>

using namespace our_plugins;

class test_shipped_styles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    void every_form_is_a_fixed_point_data() {
        QTest::addColumn<QString>("addon_file");
        for (QString const& file : shipped_addons())
            QTest::newRow(qPrintable(file)) << file;
    }
    void every_form_is_a_fixed_point() {
        QFETCH(QString, addon_file);
        std::string const addon = shipped_addon(addon_file);
        auto const& language = description_of(QString::fromStdString(language_of_addon(addon)));
        auto const formatted = tarnel_engine::forms_formatted_by_inferred_options(addon, language);
        QCOMPARE(formatted.size(), language.structures.size());
        for (auto const& [name, result] : formatted)
            QCOMPARE(QString::fromStdString(result),
                     QString::fromStdString(obtain_structure_form(name).from_already_reading(addon)));
    }

    void golden_files_data() {
        QTest::addColumn<QString>("golden_case");
        for (QString const& golden_case : golden_cases())
            QTest::newRow(qPrintable(golden_case)) << golden_case;
        QCOMPARE(golden_cases().size(), shipped_addons().size());
    }
    void golden_files() {
        QFETCH(QString, golden_case);
        std::string const input = golden_file(golden_case, "input");
        QString const expected_path = built::source_dir() + "/tests/language_plugins/golden/" + golden_case + "/expected";
        if (!QFile::exists(expected_path) && qEnvironmentVariableIsSet("STYLE_TARNEL_WRITE_GOLDEN")) {
            std::string const language = golden_case.section('/', 0, 0).toStdString();
            loaded_plugin plugin(plugin_file_of(language));
            std::string const addon = shipped_addon(golden_case.section('/', 1) + "[" + golden_case.section('/', 0, 0) + "].style");
            QFile file(expected_path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray::fromStdString(plugin->revise(input, addon, traits_of(input))));
        }
        std::string const expected = golden_file(golden_case, "expected");
        QVERIFY2(expected != input, "the input is untidy in every style");
        verify_revise(golden_case.section('/', 0, 0).toStdString(), golden_case.section('/', 1).toStdString(), input,
                      expected);
    }

    // The catalogue tells the house styles apart.
    void no_two_styles_of_a_language_agree() {
        std::map<QString, std::set<std::string>> results;
        for (QString const& golden_case : golden_cases())
            results[golden_case.section('/', 0, 0)].insert(golden_file(golden_case, "expected"));
        for (auto const& [language, distinct] : results)
            QCOMPARE(int(distinct.size()), golden_cases().filter(QRegularExpression("^" + QRegularExpression::escape(language) + "/")).size());
    }
};

QTEST_GUILESS_MAIN(test_shipped_styles)
#include "test_shipped_styles.moc"
