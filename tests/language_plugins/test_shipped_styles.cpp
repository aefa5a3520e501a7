// Every shipped addon: each form is a fixed point of the options inferred from it, and the sample
// files come out as their golden copies, with only white space changed, idempotent, and byte for
// byte the same when revised again. Set STYLE_TARNEL_WRITE_GOLDEN=1 to write missing golden files
// (then read them before committing).
#include "helpers/our_plugins.h"

#include "c_language.h"
#include "cpp_language.h"
#include "revision.h"
#include "core/style_addon.h"
#include "tests/harness/built_files.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <set>

using namespace our_plugins;

namespace {

tarnel_engine::language_description const& description_of(std::string const& language) {
    return language == "C" ? c_language() : cpp_language();
}

std::string non_white_space_of(std::string const& text) {
    std::string kept;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bool const continues_line = text[i] == '\\' && i + 1 < text.size() && text[i + 1] == '\n';
        if (!std::isspace(static_cast<unsigned char>(text[i])) && !continues_line)
            kept += text[i];
    }
    return kept;
}

QString golden_path(QString const& addon_file, QString const& sample_file) {
    QString const stem = addon_file.left(addon_file.size() - QString(".style").size());
    return built::source_dir() + "/tests/language_plugins/expected/" + stem + "/" + sample_file;
}

}  // namespace

class test_shipped_styles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    void every_form_is_a_fixed_point_data() { each_addon(); }
    void every_form_is_a_fixed_point() {
        QFETCH(QString, addon_file);
        std::string const addon = shipped_addon(addon_file);
        auto const& language = description_of(language_of_addon(addon));
        auto const formatted = tarnel_engine::forms_formatted_by_inferred_options(addon, language);
        QCOMPARE(formatted.size(), language.structures.size());
        for (auto const& [name, result] : formatted)
            QCOMPARE(QString::fromStdString(result),
                     QString::fromStdString(obtain_structure_form(name).from_already_reading(addon)));
    }

    void samples_come_out_in_the_style_data() {
        QTest::addColumn<QString>("addon_file");
        QTest::addColumn<QString>("sample_file");
        for (QString const& addon_file : shipped_addons())
            for (QString const& sample_file : samples_of(language_of_addon(shipped_addon(addon_file))))
                QTest::newRow(qPrintable(addon_file + " " + sample_file)) << addon_file << sample_file;
    }
    void samples_come_out_in_the_style() {
        QFETCH(QString, addon_file);
        QFETCH(QString, sample_file);
        std::string const addon = shipped_addon(addon_file);
        std::string const source = sample(sample_file);
        loaded_plugin plugin(plugin_file_of(language_of_addon(addon)));
        std::string const revised = plugin->revise(source, addon, traits_of(source));
        QVERIFY(revised != STYLE_TARNEL_SYNTAX_ERROR_TEXT);
        QVERIFY2(revised != source, "the sample is untidy in every style");
        QCOMPARE(non_white_space_of(revised), non_white_space_of(source));
        QCOMPARE(plugin->revise(revised, addon, traits_of(revised)), revised);
        QCOMPARE(plugin->revise(source, addon, traits_of(source)), revised);

        QString const golden = golden_path(addon_file, sample_file);
        if (!QFile::exists(golden) && qEnvironmentVariableIsSet("STYLE_TARNEL_WRITE_GOLDEN")) {
            QDir().mkpath(QFileInfo(golden).path());
            QFile file(golden);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(revised.data(), static_cast<qint64>(revised.size()));
        }
        QCOMPARE(QString::fromStdString(revised), QString::fromStdString(contents_of(golden)));
    }

    // The catalogue tells the house styles apart: no two styles of a language revise a sample alike.
    void no_two_styles_agree_on_a_sample_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("C") << "C";
        QTest::newRow("C++") << "C++";
    }
    void no_two_styles_agree_on_a_sample() {
        QFETCH(QString, language);
        std::string const name = language.toStdString();
        std::set<std::string> results;
        QStringList const addons = shipped_addons_of(name);
        loaded_plugin plugin(plugin_file_of(name));
        for (QString const& addon_file : addons) {
            std::string all;
            for (QString const& sample_file : samples_of(name)) {
                std::string const source = sample(sample_file);
                all += plugin->revise(source, shipped_addon(addon_file), traits_of(source));
            }
            results.insert(all);
        }
        QCOMPARE(int(results.size()), addons.size());
    }

private:
    void each_addon() {
        QTest::addColumn<QString>("addon_file");
        for (QString const& file : shipped_addons())
            QTest::newRow(qPrintable(file)) << file;
    }
};

QTEST_GUILESS_MAIN(test_shipped_styles)
#include "test_shipped_styles.moc"
