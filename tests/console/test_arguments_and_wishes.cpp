// How words become name/value pairs, which words are refused, and which wish a list expresses.
#include "console/arguments.h"
#include "console/result_of_run.h"
#include "console/true_if_user.h"

#include <QtTest>

#include <set>

Q_DECLARE_METATYPE(std::string)

namespace {

console::argument_list pairs_of(QStringList const& words) {
    std::set<std::string> set;
    for (auto const& word : words)
        set.insert(word.toStdString());
    console::argument_list list;
    for (auto const& word : set)
        list.push_back(retrieve_name_n_value_from(word, "="));
    return list;
}

QString wish_of(QStringList const& words) {
    console::detect_what_user_want const user(pairs_of(words));
    QStringList wishes;
    if (user.want_to_get_help()) wishes << "help";
    if (user.want_to_see_version()) wishes << "version";
    if (user.want_to_revise()) wishes << "revise";
    if (user.want_to_export_style()) wishes << "export";
    if (user.want_to_rename_style()) wishes << "rename";
    if (user.want_to_import_something()) wishes << "import";
    if (user.want_to_delete_something()) wishes << "delete";
    if (user.want_to_update_app()) wishes << "update";
    if (user.want_to_see_what_supported()) wishes << "list";
    return wishes.isEmpty() ? "none" : wishes.join(",");
}

}  // namespace

class test_arguments_and_wishes : public QObject {
    Q_OBJECT
private slots:
    void splits_a_word_at_its_first_equals_sign_data();
    void splits_a_word_at_its_first_equals_sign();
    void recognises_one_wish_data();
    void recognises_one_wish();
    void counts_both_names_of_a_flag();
    void nothing_to_do_without_arguments();
};

void test_arguments_and_wishes::splits_a_word_at_its_first_equals_sign_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("bare flag") << "--ls" << "--ls" << "";
    QTest::newRow("name and value") << "--lang=C++" << "--lang" << "C++";
    QTest::newRow("later equals signs belong to the value") << "-p=x=y" << "-p" << "x=y";
    QTest::newRow("empty value is malformed") << "--lang=" << "" << "";
    QTest::newRow("empty name is malformed") << "=C" << "" << "C";
    QTest::newRow("lone equals sign") << "=" << "" << "";
    QTest::newRow("empty word") << "" << "" << "";
    QTest::newRow("value with blanks") << "--style=SC st" << "--style" << "SC st";
}

void test_arguments_and_wishes::splits_a_word_at_its_first_equals_sign() {
    QFETCH(QString, word);
    QFETCH(QString, name);
    QFETCH(QString, value);
    pair const result = retrieve_name_n_value_from(word.toStdString(), "=");
    QCOMPARE(QString::fromStdString(result.first), name);
    if (!name.isEmpty())
        QCOMPARE(QString::fromStdString(result.second), value);
}

void test_arguments_and_wishes::recognises_one_wish_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("wish");
    QTest::newRow("-h") << QStringList{"-h"} << "help";
    QTest::newRow("--help") << QStringList{"--help"} << "help";
    QTest::newRow("help with a value") << QStringList{"--help=1"} << "none";
    QTest::newRow("help and version") << QStringList{"-h", "-v"} << "none";
    QTest::newRow("-v") << QStringList{"-v"} << "version";
    QTest::newRow("--ls") << QStringList{"--ls"} << "list";
    QTest::newRow("--ls with a value") << QStringList{"--ls=all"} << "none";
    QTest::newRow("revise") << QStringList{"-l=C", "-s=GNU", "-p=x"} << "revise";
    QTest::newRow("revise, long names, two paths, force, extensions")
        << QStringList{"--lang=C", "--style=GNU", "--path=a", "--path=b", "--force", "--exts=c"} << "revise";
    QTest::newRow("revise tolerates other known names") << QStringList{"-l=C", "-s=GNU", "-p=x", "--delete"} << "revise";
    QTest::newRow("the same word twice counts once") << QStringList{"-l=C", "-l=C", "-s=GNU", "-p=x"} << "revise";
    QTest::newRow("two languages") << QStringList{"-l=C", "--lang=Java", "-s=GNU", "-p=x"} << "none";
    QTest::newRow("short and long force together") << QStringList{"-l=C", "-s=GNU", "-p=x", "-f", "--force"} << "none";
    QTest::newRow("two extension lists") << QStringList{"-l=C", "-s=GNU", "-p=x", "--exts=c", "--exts=h"} << "none";
    QTest::newRow("revise without a path") << QStringList{"-l=C", "-s=GNU", "-f"} << "none";
    QTest::newRow("export") << QStringList{"-l=C", "-s=GNU", "--export=/tmp"} << "export";
    QTest::newRow("export with a path too") << QStringList{"-l=C", "-s=GNU", "--export=/tmp", "-p=x"} << "revise";
    QTest::newRow("rename") << QStringList{"-l=C", "-s=GNU", "--rename=New"} << "rename";
    QTest::newRow("import") << QStringList{"--import=/tmp/a.style"} << "import";
    QTest::newRow("import without a value") << QStringList{"--import"} << "import";
    QTest::newRow("import and more") << QStringList{"--import=a", "-l=C"} << "none";
    QTest::newRow("delete a language") << QStringList{"-l=C", "--delete"} << "delete";
    QTest::newRow("delete with a value") << QStringList{"-l=C", "--delete=yes"} << "delete";
    QTest::newRow("delete a style") << QStringList{"-l=C", "-s=GNU", "--delete"} << "delete";
    QTest::newRow("delete with nothing named") << QStringList{"--delete"} << "none";
    QTest::newRow("update") << QStringList{"--update=/tmp/x"} << "update";
    QTest::newRow("nothing") << QStringList{} << "none";
}

void test_arguments_and_wishes::recognises_one_wish() {
    QFETCH(QStringList, words);
    QFETCH(QString, wish);
    QCOMPARE(wish_of(words), wish);
}

void test_arguments_and_wishes::counts_both_names_of_a_flag() {
    auto const list = pairs_of({"-l=C", "--lang=Java", "-s=GNU"});
    QCOMPARE(quantity_of("--lang", "-l").in(list), std::size_t(2));
    QCOMPARE(quantity_of("--lang").in(list), std::size_t(1));
    QCOMPARE(quantity_of("--exts").in(list), std::size_t(0));
}

void test_arguments_and_wishes::nothing_to_do_without_arguments() {
    // (Without arguments the executable opens its window; the runner itself refuses silently.)
    char name[] = "Style Tarnel";
    char* argv[] = {name, nullptr};
    QCOMPARE(console::result_of_run()(1, argv), 1);
}

QTEST_APPLESS_MAIN(test_arguments_and_wishes)
#include "test_arguments_and_wishes.moc"
