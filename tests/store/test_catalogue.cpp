// What the kernel says is installed: languages by their plugins, styles by their addons (one
// stray file hides them all), per-language answers, existence checks, and reading and replacing
// one structure's form in an installed style.
#include "core/kernel.h"
#include "core/there_is_no_such.h"
#include "tests/harness/built_files.h"
#include "tests/harness/test_main.h"
#include "tests/store/helpers/store_fixture.h"

Q_DECLARE_METATYPE(std::string)

namespace {

using addon_files = QMap<QString, QByteArray>;
using style_names = std::map<std::string, std::vector<std::string>>;

void install(addon_files const& addons) {
    for (auto it = addons.begin(); it != addons.end(); ++it)
        fixture::install_addon(it.key(), it.value());
}

QStringList listed(std::vector<style_description> const& styles) {
    QStringList list;
    for (auto const& d : styles)
        list << QString::fromStdString(d.style + "|" + d.language);
    return list;
}

QStringList listed(std::vector<std::string> const& names) {
    QStringList list;
    for (auto const& name : names)
        list << QString::fromStdString(name);
    return list;
}

}  // namespace

Q_DECLARE_METATYPE(addon_files)
Q_DECLARE_METATYPE(style_names)

class test_catalogue : public QObject {
    Q_OBJECT
private slots:
    void init() { fixture::clear_bundle(); }
    void cleanupTestCase() { fixture::clear_bundle(); }

    void lists_languages_by_their_plugins_data();
    void lists_languages_by_their_plugins();
    void lists_styles_of_a_language_data();
    void lists_styles_of_a_language();
    void maps_languages_to_their_styles_data();
    void maps_languages_to_their_styles();
    void answers_per_language_questions();
    void lists_the_placeholders();
    void tells_plugins_from_other_files_data();
    void tells_plugins_from_other_files();
    void checks_what_exists();
    void sees_what_was_installed_since_the_last_call();
    void reads_and_replaces_a_form_data();
    void reads_and_replaces_a_form();
};

void test_catalogue::lists_languages_by_their_plugins_data() {
    QTest::addColumn<QStringList>("plugins");
    QTest::addColumn<QStringList>("languages");
    QTest::newRow("none") << QStringList{} << QStringList{};
    QTest::newRow("in file-name order")
        << QStringList{built::test_language_plugin(), built::other_language_plugin()}
        << QStringList{"Other", "Test"};
    QTest::newRow("the same name twice is kept")
        << QStringList{built::test_language_plugin(), built::twin_language_plugin()}
        << QStringList{"Test", "Test"};
    QTest::newRow("files that are no language plugins are passed over")
        << QStringList{built::test_language_plugin(), built::plugin_without_interface(),
                       built::library_without_plugin()}
        << QStringList{"Test"};
}

void test_catalogue::lists_languages_by_their_plugins() {
    QFETCH(QStringList, plugins);
    QFETCH(QStringList, languages);
    for (auto const& plugin : plugins)
        fixture::install_plugin(plugin);
    fixture::write_file(fixture::plugins_directory() + "/notes.txt", "not a plugin");
    QCOMPARE(listed(kernel().supported_programming_languages()), languages);
}

void test_catalogue::lists_styles_of_a_language_data() {
    QTest::addColumn<addon_files>("addons");
    QTest::addColumn<bool>("present");
    QTest::addColumn<QStringList>("styles");
    QTest::newRow("empty directory") << addon_files{} << true << QStringList{};
    QTest::newRow("only that language's, in file-name order")
        << addon_files{{"b[Test].style", fixture::addon("b", "Test")},
                       {"A[Test].style", fixture::addon("A", "Test")},
                       {"o[Other].style", fixture::addon("o", "Other")}}
        << true << QStringList{"A|Test", "b|Test"};
    QTest::newRow("the same style name twice is kept")
        << addon_files{{"x1.style", fixture::addon("x", "Test")},
                       {"x2.style", fixture::addon("x", "Test")}}
        << true << QStringList{"x|Test", "x|Test"};
    QTest::newRow("identified by content, not by file name")
        << addon_files{{"whatever.txt", fixture::addon("real", "Test")}} << true
        << QStringList{"real|Test"};
    QTest::newRow("CR LF addon belongs to the language with the carriage return")
        << addon_files{{"a[Test].style", fixture::addon("a", "Test", {}, "\r\n")}} << true
        << QStringList{};
    QTest::newRow("a stray text file hides all styles")
        << addon_files{{"a[Test].style", fixture::addon("a", "Test")}, {"notes.txt", "my notes\n"}}
        << false << QStringList{};
    QTest::newRow("an addon without a style name hides all styles")
        << addon_files{{"a[Test].style", fixture::addon("a", "Test")},
                       {"z.style", "LANGUAGE=Test\nNAME="}}
        << false << QStringList{};
}

void test_catalogue::lists_styles_of_a_language() {
    QFETCH(addon_files, addons);
    QFETCH(bool, present);
    QFETCH(QStringList, styles);
    install(addons);
    auto const list = kernel().supported_formatting_styles_for("Test");
    QCOMPARE(bool(list), present);
    if (list)
        QCOMPARE(listed(*list), styles);
}

void test_catalogue::maps_languages_to_their_styles_data() {
    QTest::addColumn<addon_files>("addons");
    QTest::addColumn<style_names>("map");
    QTest::newRow("twins merge into one language; a language without styles is kept")
        << addon_files{{"b[Test].style", fixture::addon("b", "Test")},
                       {"a[Test].style", fixture::addon("a", "Test")},
                       {"n[None].style", fixture::addon("n", "None")}}
        << style_names{{"Other", {}}, {"Test", {"a", "b"}}};
    QTest::newRow("a stray file empties the map")
        << addon_files{{"a[Test].style", fixture::addon("a", "Test")}, {"notes.txt", "x"}}
        << style_names{};
}

void test_catalogue::maps_languages_to_their_styles() {
    QFETCH(addon_files, addons);
    QFETCH(style_names, map);
    fixture::install_plugin(built::test_language_plugin());
    fixture::install_plugin(built::twin_language_plugin());
    fixture::install_plugin(built::other_language_plugin());
    install(addons);
    QVERIFY(kernel().supported_langs_n_styles() == map);
}

void test_catalogue::answers_per_language_questions() {
    fixture::install_plugin(built::test_language_plugin());
    fixture::install_plugin(built::other_language_plugin());
    kernel const k;
    auto const structures = k.info_about_structures_of("Test");
    QCOMPARE(structures.size(), std::size_t(3));
    QCOMPARE(structures.begin()->first, std::string("block"));
    QCOMPARE(structures.at("block"), std::string(R"(begin\s+SOME\s+end)"));
    QCOMPARE(listed(k.list_of_keywords_of("Test")), (QStringList{"begin", "end", "if"}));
    QCOMPARE(listed(k.filename_extensions_for("Test")), (QStringList{"tst", "test"}));

    QVERIFY(k.info_about_structures_of("Missing").empty());
    QVERIFY(k.list_of_keywords_of("Missing").empty());
    QVERIFY(k.filename_extensions_for("Missing").empty());
    QVERIFY(k.list_of_keywords_of("test").empty());
}

void test_catalogue::lists_the_placeholders() {
    QCOMPARE(listed(kernel().list_of_placeholders()),
             (QStringList{"SOME", "SOME_LONG", "type", "name", "name_long_part", "name_part", "label",
                          "protocols", "attribute", "argument", "directive"}));
}

void test_catalogue::tells_plugins_from_other_files_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("plugin");
    QTest::newRow("language plugin") << built::test_language_plugin() << true;
    QTest::newRow("Qt plugin without the interface") << built::plugin_without_interface() << true;
    QTest::newRow("library that is no Qt plugin") << built::library_without_plugin() << false;
    QTest::newRow("missing file") << QString("/nonexistent/libx.so") << false;
}

void test_catalogue::tells_plugins_from_other_files() {
    QFETCH(QString, path);
    QFETCH(bool, plugin);
    QCOMPARE(kernel().this_is_a_plugin(path.toStdString()), plugin);
}

void test_catalogue::checks_what_exists() {
    fixture::install_plugin(built::test_language_plugin());
    fixture::install_addon("a[Test].style", fixture::addon("a", "Test"));
    fixture::install_addon("o[Other].style", fixture::addon("o", "Other"));
    there_is_no_such const no;
    QVERIFY(!no.language("Test"));
    QVERIFY(no.language("Other"));  // An addon alone does not make a language.
    QVERIFY(no.language("test"));
    QVERIFY(!no.style("a", "Test"));
    QVERIFY(no.style("o", "Test"));
    QVERIFY(no.style("A", "Test"));
    QVERIFY(!no.style("o", "Other"));
}

void test_catalogue::sees_what_was_installed_since_the_last_call() {
    kernel const k;
    QVERIFY(k.supported_programming_languages().empty());
    QCOMPARE(k.supported_formatting_styles_for("Test")->size(), std::size_t(0));
    fixture::install_plugin(built::test_language_plugin());
    fixture::install_addon("a[Test].style", fixture::addon("a", "Test"));
    QCOMPARE(listed(k.supported_programming_languages()), QStringList{"Test"});
    QCOMPARE(listed(*k.supported_formatting_styles_for("Test")), QStringList{"a|Test"});
}

void test_catalogue::reads_and_replaces_a_form_data() {
    QTest::addColumn<addon_files>("addons");
    QTest::addColumn<std::string>("style");
    QTest::addColumn<std::string>("structure");
    QTest::addColumn<std::string>("form");
    QTest::addColumn<bool>("replaced");
    QTest::addColumn<QByteArray>("after");
    QByteArray const addon = fixture::addon("a", "Test", fixture::section("block", "begin SOME end"));
    QTest::newRow("present structure")
        << addon_files{{"a[Test].style", addon}, {"b[Test].style", fixture::addon("b", "Test")}}
        << std::string("a") << std::string("block") << std::string("begin SOME end") << true
        << fixture::addon("a", "Test", fixture::section("block", "begin\n  SOME\nend"));
    QTest::newRow("absent structure: empty form, no section added")
        << addon_files{{"a[Test].style", addon}} << std::string("a") << std::string("function")
        << std::string() << false << addon;
    QTest::newRow("style not installed: nothing written, success")
        << addon_files{{"a[Test].style", addon}} << std::string("zz") << std::string("block")
        << std::string() << true << addon;
    QTest::newRow("a stray file before the addon makes both fail")
        << addon_files{{"0 notes.txt", "x"}, {"a[Test].style", addon}} << std::string("a")
        << std::string("block") << std::string() << false << addon;
}

void test_catalogue::reads_and_replaces_a_form() {
    QFETCH(addon_files, addons);
    QFETCH(std::string, style);
    QFETCH(std::string, structure);
    QFETCH(std::string, form);
    QFETCH(bool, replaced);
    QFETCH(QByteArray, after);
    install(addons);
    kernel const k;
    QCOMPARE(k.language_structure_form_based_on("Test", style, structure), form);
    QCOMPARE(k.update_language_structure_form("Test", style, structure, "begin\n  SOME\nend"),
             replaced);
    QCOMPARE(fixture::contents_of(fixture::addons_directory() + "/a[Test].style"), after);
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_catalogue)
#include "test_catalogue.moc"
