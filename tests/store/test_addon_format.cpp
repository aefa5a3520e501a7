// The style addon format: which files are addons, their header values and descriptions, reading
// and replacing one structure's form, renaming inside an addon and its file, checking forms
// against a plugin's expressions, and the style-name expression.
#include "engine/format_of_this.h"
#include "core/style_addon.h"
#include "core/style_addon_editing.h"
#include "tests/harness/built_files.h"
#include "tests/harness/test_main.h"
#include "tests/store/helpers/store_fixture.h"

#include <QPluginLoader>
#include <boost/xpressive/xpressive.hpp>

Q_DECLARE_METATYPE(std::string)

namespace {

std::string bytes(QByteArray const& array) { return array.toStdString(); }

// A plugin made in the test, for expressions the test plugin does not have.
class plugin_with_expressions : public interface_to_language_plugin {
public:
    explicit plugin_with_expressions(std::map<std::string, std::string> forms) : forms(forms) {}
    std::string language_name() override { return "Fake"; }
    std::vector<std::string> list_of_keywords() override { return {}; }
    std::vector<std::string> filename_extensions() override { return {}; }
    std::map<std::string, std::string> forms_of_structures() override { return forms; }
    std::string revise(std::string const& source, std::string const&,
                       line_ending_traits const&) override {
        return source;
    }
    void end_of_revision() override {}

private:
    std::map<std::string, std::string> forms;
};

using expressions = std::map<std::string, std::string>;

}  // namespace

Q_DECLARE_METATYPE(expressions)

class test_addon_format : public QObject {
    Q_OBJECT
private slots:
    void init() { fixture::clear_bundle(); }
    void cleanupTestCase() { fixture::clear_bundle(); }

    void tells_addons_by_their_complete_suffix_data();
    void tells_addons_by_their_complete_suffix();
    void reads_the_description_data();
    void reads_the_description();
    void extracts_header_values_data();
    void extracts_header_values();
    void reads_the_form_of_a_structure_data();
    void reads_the_form_of_a_structure();
    void replaces_the_form_of_a_structure_data();
    void replaces_the_form_of_a_structure();
    void renames_the_style_inside_the_addon_data();
    void renames_the_style_inside_the_addon();
    void renames_the_addon_file_data();
    void renames_the_addon_file();
    void checks_forms_against_the_plugin_data();
    void checks_forms_against_the_plugin();
    void checks_a_megabyte_form_against_the_test_plugin_data();
    void checks_a_megabyte_form_against_the_test_plugin();
    void survives_an_expression_that_recurses_per_character();
    void admits_style_names_data();
    void admits_style_names();
};

void test_addon_format::tells_addons_by_their_complete_suffix_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("addon");
    QTest::newRow("style and language") << "/x/compact[C++].style" << true;
    QTest::newRow("bare name") << "a.style" << true;
    QTest::newRow("dot before the suffix") << "/x/a.b.style" << false;
    QTest::newRow("suffix in capitals") << "a.STYLE" << false;
    QTest::newRow("backup") << "a.style.bak" << false;
    QTest::newRow("text file") << "notes.txt" << false;
    QTest::newRow("no suffix") << "style" << false;
}

void test_addon_format::tells_addons_by_their_complete_suffix() {
    QFETCH(QString, path);
    QFETCH(bool, addon);
    QCOMPARE(style_addon()(path.toStdString()), addon);
}

void test_addon_format::reads_the_description_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::string>("style");
    QTest::addColumn<std::string>("language");
    QTest::newRow("line feeds") << QByteArray("NAME=a\nLANGUAGE=C++\n") << bytes("a") << bytes("C++");
    QTest::newRow("CR LF keeps the carriage return")
        << QByteArray("NAME=a\r\nLANGUAGE=C++\r\n") << bytes("a\r") << bytes("C++\r");
    QTest::newRow("no line end after the last value")
        << QByteArray("NAME=a\nLANGUAGE=C") << bytes("a") << bytes("C");
    QTest::newRow("blanks are kept") << QByteArray("NAME= a \nLANGUAGE=C\n") << bytes(" a ") << bytes("C");
    QTest::newRow("no LANGUAGE key") << QByteArray("NAME=a\nLANG=C\n") << bytes("") << bytes("");
    QTest::newRow("LANGUAGE without =") << QByteArray("NAME=a\nLANGUAGE C\n") << bytes("") << bytes("");
    QTest::newRow("empty file") << QByteArray() << bytes("") << bytes("");
    QTest::newRow("key at the very end") << QByteArray("LANGUAGE=C\nNAME=") << bytes("") << bytes("C");
    QTest::newRow("UTF-16 text of ASCII characters")
        << QByteArray("N\0A\0M\0E\0=\0a\0\n\0L\0A\0N\0G\0U\0A\0G\0E\0=\0T\0\n\0", 36) << bytes("a")
        << bytes("T");
    QTest::newRow("a section before the header names the style by its S_NAME")
        << QByteArray("S_NAME=block\nNAME=a\nLANGUAGE=T\n") << bytes("block") << bytes("T");
}

void test_addon_format::reads_the_description() {
    QFETCH(QByteArray, content);
    QFETCH(std::string, style);
    QFETCH(std::string, language);
    fixture::install_addon("a[T].style", content);
    style_description const d = obtain_style_description().from("a[T].style");
    QCOMPARE(d.style, style);
    QCOMPARE(d.language, language);
    QVERIFY(obtain_style_description().from_raw(
                (fixture::addons_directory() + "/a[T].style").toStdString()) == d);
}

void test_addon_format::extracts_header_values_data() {
    QTest::addColumn<std::string>("text");
    QTest::addColumn<bool>("present");
    QTest::addColumn<std::string>("value");
    QTest::newRow("absent") << bytes("LANGUAGE=C\n") << false << bytes("");
    QTest::newRow("up to the line feed") << bytes("KEY=value\nmore") << true << bytes("value");
    QTest::newRow("carriage return kept") << bytes("KEY=value\r\n") << true << bytes("value\r");
    QTest::newRow("ends the text") << bytes("x KEY=") << true << bytes("");
    QTest::newRow("first occurrence") << bytes("KEY=1\nKEY=2\n") << true << bytes("1");
    QTest::newRow("found inside a longer key") << bytes("MY_KEY=1\n") << true << bytes("1");
}

void test_addon_format::extracts_header_values() {
    QFETCH(std::string, text);
    QFETCH(bool, present);
    QFETCH(std::string, value);
    auto const found = extract_value_of().from_ini_like("KEY", text, "=");
    QCOMPARE(bool(found), present);
    if (found)
        QCOMPARE(*found, value);
}

void test_addon_format::reads_the_form_of_a_structure_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::string>("structure");
    QTest::addColumn<std::string>("form");
    QByteArray const head = fixture::addon("a", "T");
    QTest::newRow("one line") << head + fixture::section("block", "begin SOME end") << bytes("block")
                              << bytes("begin SOME end");
    QTest::newRow("several lines")
        << head + fixture::section("block", "begin\n  SOME\nend") << bytes("block")
        << bytes("begin\n  SOME\nend");
    QTest::newRow("CR LF: inner line ends kept, the last one belongs to S_END")
        << fixture::addon("a", "T", fixture::section("block", "begin\r\nSOME\r\nend", "\r\n"), "\r\n")
        << bytes("block") << bytes("begin\r\nSOME\r\nend");
    QTest::newRow("blank line before S_END ends the form with a line end")
        << head + fixture::section("block", "begin SOME end\n") << bytes("block")
        << bytes("begin SOME end\n");
    QTest::newRow("a longer name that comes first is found")
        << head + fixture::section("function call", "name(argument);") +
               fixture::section("function", "type name() { SOME }")
        << bytes("function") << bytes("name(argument);");
    QTest::newRow("the longer name itself")
        << head + fixture::section("function", "type name() { SOME }") +
               fixture::section("function call", "name(argument);")
        << bytes("function call") << bytes("name(argument);");
    QTest::newRow("no S_END: up to the end of the text")
        << head + "S_NAME=block\nS_BEG\nbegin SOME end\n" << bytes("block") << bytes("begin SOME end\n");
    QTest::newRow("trailing blanks after the name still read")
        << head + "S_NAME=block  \nS_BEG\nbegin SOME end\nS_END\n" << bytes("block")
        << bytes("begin SOME end");
    QTest::newRow("absent section") << head + fixture::section("block", "begin SOME end")
                                    << bytes("function") << bytes("");
    QTest::newRow("no line ending anywhere")
        << QByteArray("NAME=aS_NAME=blockS_BEGbegin SOME endS_END") << bytes("block")
        << bytes("begin SOME end");
}

void test_addon_format::reads_the_form_of_a_structure() {
    QFETCH(QByteArray, content);
    QFETCH(std::string, structure);
    QFETCH(std::string, form);
    QCOMPARE(obtain_structure_form(structure).from_already_reading(content.toStdString()), form);
    fixture::install_addon("a[T].style", content);
    QCOMPARE(obtain_structure_form(structure).from("a[T].style"), form);
    QCOMPARE(obtain_structure_form(structure).from("missing[T].style"), std::string());
}

void test_addon_format::replaces_the_form_of_a_structure_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::string>("structure");
    QTest::addColumn<std::string>("form");
    QTest::addColumn<bool>("replaced");
    QTest::addColumn<QByteArray>("after");
    QByteArray const head = fixture::addon("a", "T");
    QByteArray const block = fixture::section("block", "begin SOME end");
    QByteArray const call = fixture::section("function call", "name(argument);");
    QTest::newRow("replaces only that form")
        << head + call + block << bytes("block") << bytes("begin\n  SOME\nend") << true
        << head + call + fixture::section("block", "begin\n  SOME\nend");
    QTest::newRow("the exact name, not a longer one that comes first")
        << head + call + fixture::section("function", "type name() { SOME }") << bytes("function")
        << bytes("type name() {}") << true << head + call + fixture::section("function", "type name() {}");
    QTest::newRow("CR LF file: the new form's line feeds stay as given")
        << fixture::addon("a", "T", fixture::section("block", "begin SOME end", "\r\n"), "\r\n")
        << bytes("block") << bytes("begin\nSOME\nend") << true
        << fixture::addon("a", "T", "S_NAME=block\r\nS_BEG\r\nbegin\nSOME\nend\r\nS_END\r\n", "\r\n");
    QTest::newRow("no S_END: replaces up to the end")
        << head + "S_NAME=block\nS_BEG\nold\n" << bytes("block") << bytes("new") << true
        << head + "S_NAME=block\nS_BEG\nnew";
    QTest::newRow("trailing blanks after the name: refused")
        << head + "S_NAME=block  \nS_BEG\nbegin SOME end\nS_END\n" << bytes("block") << bytes("new")
        << false << head + "S_NAME=block  \nS_BEG\nbegin SOME end\nS_END\n";
    QTest::newRow("absent section: refused, nothing added")
        << head + block << bytes("function") << bytes("type name() { SOME }") << false << head + block;
}

void test_addon_format::replaces_the_form_of_a_structure() {
    QFETCH(QByteArray, content);
    QFETCH(std::string, structure);
    QFETCH(std::string, form);
    QFETCH(bool, replaced);
    QFETCH(QByteArray, after);
    fixture::install_addon("a[T].style", content);
    QCOMPARE(update_this(structure, "a[T].style").by(form), replaced);
    QCOMPARE(fixture::contents_of(fixture::addons_directory() + "/a[T].style"), after);
    QCOMPARE(fixture::files_in(fixture::addons_directory()), QStringList{"a[T].style"});
    QVERIFY(!update_this(structure, "missing[T].style").by(form));
}

void test_addon_format::renames_the_style_inside_the_addon_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<std::string>("old_name");
    QTest::addColumn<bool>("renamed");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("first NAME= only")
        << QByteArray("NAME=a\nLANGUAGE=T\nNAME=a\n") << bytes("a") << true
        << QByteArray("NAME=b c\nLANGUAGE=T\nNAME=a\n");
    QTest::newRow("CR LF name carries its carriage return")
        << QByteArray("NAME=a\r\nLANGUAGE=T\r\n") << bytes("a\r") << true
        << QByteArray("NAME=b c\nLANGUAGE=T\r\n");
    QTest::newRow("old name not in the file")
        << QByteArray("NAME=a\nLANGUAGE=T\n") << bytes("x") << false
        << QByteArray("NAME=a\nLANGUAGE=T\n");
}

void test_addon_format::renames_the_style_inside_the_addon() {
    QFETCH(QByteArray, content);
    QFETCH(std::string, old_name);
    QFETCH(bool, renamed);
    QFETCH(QByteArray, after);
    fixture::install_addon("a[T].style", content);
    QCOMPARE(rename_this_style("a[T].style", old_name).to("b c"), renamed);
    QCOMPARE(fixture::contents_of(fixture::addons_directory() + "/a[T].style"), after);
}

void test_addon_format::renames_the_addon_file_data() {
    QTest::addColumn<std::string>("new_name");
    QTest::addColumn<std::string>("language");
    QTest::addColumn<bool>("renamed");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("to the naming rule") << bytes("b") << bytes("T") << true
                                        << QStringList{"b[T].style", "taken[T].style"};
    QTest::newRow("onto an existing file") << bytes("taken") << bytes("T") << false
                                           << QStringList{"odd name.style", "taken[T].style"};
    QTest::newRow("style name with a separator") << bytes("../b") << bytes("T") << false
                                                 << QStringList{"odd name.style", "taken[T].style"};
    QTest::newRow("language name with a separator") << bytes("b") << bytes("x/../..") << false
                                                    << QStringList{"odd name.style", "taken[T].style"};
}

void test_addon_format::renames_the_addon_file() {
    QFETCH(std::string, new_name);
    QFETCH(std::string, language);
    QFETCH(bool, renamed);
    QFETCH(QStringList, files);
    fixture::install_addon("odd name.style", fixture::addon("a", "T"));
    fixture::install_addon("taken[T].style", fixture::addon("taken", "T"));
    QCOMPARE(rename_this_addon_file("odd name.style").based_on(new_name, language), renamed);
    QCOMPARE(fixture::files_in(fixture::addons_directory()), files);
    QCOMPARE(fixture::contents_of(fixture::addons_directory() + "/taken[T].style"),
             fixture::addon("taken", "T"));
    QDir bundle(fixture::addons_directory());
    bundle.cdUp();
    QCOMPARE(fixture::files_in(bundle.path()), (QStringList{"languages", "styles"}));
}

void test_addon_format::checks_forms_against_the_plugin_data() {
    QTest::addColumn<expressions>("structures");
    QTest::addColumn<QByteArray>("sections");
    QTest::addColumn<bool>("invalid");
    QTest::addColumn<std::string>("bad_structure");
    expressions const test{{"block", R"(begin\s+SOME\s+end)"},
                           {"function", R"(type\s+name\s*\(\s*\)\s*\{\s*SOME\s*\})"}};
    QTest::newRow("no structures: every addon is valid")
        << expressions{} << fixture::section("block", "nonsense") << false << bytes("");
    QTest::newRow("every present form matches")
        << test << fixture::section("block", "begin\n  SOME\nend") +
                       fixture::section("function", "type name() { SOME }")
        << false << bytes("");
    QTest::newRow("a missing form is no error") << test << fixture::section("block", "begin SOME end")
                                                << false << bytes("");
    QTest::newRow("a partial match is no match")
        << test << fixture::section("block", "begin SOME end;") << true << bytes("block");
    QTest::newRow("the first bad structure in name order is named")
        << test << fixture::section("function", "x") + fixture::section("block", "y") << true
        << bytes("block");
    QTest::newRow("an expression that does not compile accepts nothing")
        << expressions{{"block", "(unclosed"}} << fixture::section("block", "(unclosed") << true
        << bytes("block");
}

void test_addon_format::checks_forms_against_the_plugin() {
    QFETCH(expressions, structures);
    QFETCH(QByteArray, sections);
    QFETCH(bool, invalid);
    QFETCH(std::string, bad_structure);
    plugin_with_expressions plugin(structures);
    std::string named;
    QCOMPARE(format_of_this(fixture::addon("a", "Fake", sections).toStdString())
                 .is_invalid_based_on(&plugin, named),
             invalid);
    QCOMPARE(named, bad_structure);
}

void test_addon_format::checks_a_megabyte_form_against_the_test_plugin_data() {
    QTest::addColumn<QByteArray>("sections");
    QTest::addColumn<bool>("invalid");
    QByteArray const megabyte(1 << 20, ' ');
    QTest::newRow("valid block") << fixture::section("block", "begin" + megabyte + "SOME end") << false;
    QTest::newRow("valid function")
        << fixture::section("function", "type name(" + megabyte + ") {" + megabyte + "SOME }") << false;
    QTest::newRow("invalid block")
        << fixture::section("block", "begin" + megabyte + "SOME" + QByteArray(1 << 20, 'x')) << true;
}

void test_addon_format::checks_a_megabyte_form_against_the_test_plugin() {
    QFETCH(QByteArray, sections);
    QFETCH(bool, invalid);
    QPluginLoader loader(built::test_language_plugin());
    auto* plugin = qobject_cast<interface_to_language_plugin*>(loader.instance());
    QVERIFY(plugin != nullptr);
    std::string named;
    QCOMPARE(format_of_this(fixture::addon("a", "Test", sections).toStdString())
                 .is_invalid_based_on(plugin, named),
             invalid);
}

void test_addon_format::survives_an_expression_that_recurses_per_character() {
    // A repeated group makes the matcher recurse once per character: far beyond an ordinary
    // stack for a megabyte.
    plugin_with_expressions plugin(expressions{{"block", R"(begin(\s)+end)"}});
    QByteArray const form = "begin" + QByteArray(1 << 20, ' ') + "end";
    std::string named;
    QVERIFY(!format_of_this(fixture::addon("a", "Fake", fixture::section("block", form)).toStdString())
                 .is_invalid_based_on(&plugin, named));
    QVERIFY(format_of_this(fixture::addon("a", "Fake", fixture::section("block", form + "!")).toStdString())
                .is_invalid_based_on(&plugin, named));
    QCOMPARE(named, bytes("block"));
}

void test_addon_format::admits_style_names_data() {
    QTest::addColumn<std::string>("name");
    QTest::addColumn<bool>("admitted");
    QTest::newRow("letters and digits") << bytes("Compact2") << true;
    QTest::newRow("blanks and tabs") << bytes("my style\tnew") << true;
    QTest::newRow("hyphen") << bytes("a-b") << true;
    QTest::newRow("underscore") << bytes("a_b") << true;
    QTest::newRow("ampersand") << bytes("K&R") << true;
    QTest::newRow("empty") << bytes("") << true;
    QTest::newRow("separator") << bytes("a/b") << false;
    QTest::newRow("dots") << bytes("..") << false;
    QTest::newRow("non-ASCII letter") << bytes("\xc3\xbc") << false;
    QTest::newRow("plus, inside a range from blank to underscore") << bytes("a+b") << false;
    QTest::newRow("brackets of a file name") << bytes("a[b]") << false;
    QTest::newRow("backslash") << bytes("a\\b") << false;
}

void test_addon_format::admits_style_names() {
    QFETCH(std::string, name);
    QFETCH(bool, admitted);
    namespace xp = boost::xpressive;
    QCOMPARE(xp::regex_match(name, xp::sregex::compile(style_name_validator())), admitted);
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_addon_format)
#include "test_addon_format.moc"
