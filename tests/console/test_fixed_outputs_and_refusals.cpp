// The real executable's usage text, version line and listing, and the words it refuses.
#include "tests/console/helpers/installed_bundle.h"

#include <QFile>

namespace {

QByteArray const usage_hint = " Please run app with '-h' flag to see usage info.\n";

}  // namespace

class test_fixed_outputs_and_refusals : public QObject {
    Q_OBJECT
private slots:
    void prints_the_usage_text_line_by_line();
    void prints_the_version_line();
    void lists_languages_with_aligned_styles();
    void lists_a_language_without_styles();
    void says_so_when_no_language_is_installed();
    void a_stray_file_among_the_styles_hides_every_style();
    void refuses_words_data();
    void refuses_words();
    void without_a_terminal_never_asks_for_the_agreement();
    void a_person_at_a_terminal_accepts_the_agreement_once();
};

void test_fixed_outputs_and_refusals::prints_the_usage_text_line_by_line() {
    QFile reference(QFINDTESTDATA("usage.txt"));
    QVERIFY(reference.open(QIODevice::ReadOnly));
    QList<QByteArray> const expected = reference.readAll().split('\n');
    installed_bundle bundle;
    for (auto const& flag : {"-h", "--help"}) {
        run_result const result = bundle.run({flag});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out, QByteArray());
        QList<QByteArray> const lines = result.err.split('\n');
        for (int i = 0; i < std::min(lines.size(), expected.size()); ++i)
            QCOMPARE(QString::fromUtf8(lines[i]), QString::fromUtf8(expected[i]));
        QCOMPARE(lines.size(), expected.size());
    }
}

void test_fixed_outputs_and_refusals::prints_the_version_line() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"-v"}), "Style Tarnel, version 2.0.0\n", "", 0);
    COMPARE_RUN(bundle.run({"--version"}), "Style Tarnel, version 2.0.0\n", "", 0);
}

void test_fixed_outputs_and_refusals::lists_languages_with_aligned_styles() {
    installed_bundle bundle;
    bundle.add_addon("c-gnu.style", addon_text("GNU", "C"));
    bundle.add_addon("c-kr.style", addon_text("Kernighan&Ritchie", "C"));
    // Without a plugin for C its styles are not listed: languages come from plugins.
    COMPARE_RUN(bundle.run({"--ls"}),
                " Supported programming languages and formatting styles: \n"
                "\n"
                " Other .. Plain\n"
                "\n"
                " Test ... Plain\n"
                "        . Wide\n"
                "\n",
                "", 0);
}

void test_fixed_outputs_and_refusals::lists_a_language_without_styles() {
    temporary_bundle bundle;
    bundle.add_plugin(built::test_language_plugin());
    COMPARE_RUN(bundle.run({"--ls"}),
                " Supported programming languages and formatting styles: \n\n Test .. there's no styles\n\n", "",
                0);
}

void test_fixed_outputs_and_refusals::says_so_when_no_language_is_installed() {
    temporary_bundle bundle;
    bundle.add_addon(addon_file("Plain", "Test"), addon_text("Plain", "Test"));
    COMPARE_RUN(bundle.run({"--ls"}), "Unfortunately, you have no programming languages. Please import it.\n", "", 0);
}

void test_fixed_outputs_and_refusals::a_stray_file_among_the_styles_hides_every_style() {
    installed_bundle bundle;
    bundle.add_addon("notes.txt", "just notes\n");
    COMPARE_RUN(bundle.run({"--ls"}), "Unfortunately, you have no programming languages. Please import it.\n", "", 0);
}

void test_fixed_outputs_and_refusals::refuses_words_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("message");
    QByteArray const form = "Valid argument (except '--delete') must be in the form 'name=value'." + usage_hint;
    QByteArray const unknown = "There are unknown arguments." + usage_hint;
    QByteArray const not_understood = "I don't understand what you want to do." + usage_hint;
    QTest::newRow("empty value") << QStringList{"--lang="} << form;
    QTest::newRow("empty name") << QStringList{"=C", "-h"} << form;
    QTest::newRow("form checked before names") << QStringList{"--bogus", "--bogus="} << form;
    QTest::newRow("unknown bare name") << QStringList{"--bogus"} << unknown;
    QTest::newRow("unknown name with value") << QStringList{"--bogus=1", "-l=C"} << unknown;
    QTest::newRow("names are not prefixes") << QStringList{"--lan=C", "-s=Plain", "-p=."} << unknown;
    QTest::newRow("words of Qt's own") << QStringList{"-qmljsdebugger=port:1", "-v"} << unknown;
    QTest::newRow("help and version") << QStringList{"-h", "-v"} << not_understood;
    QTest::newRow("help with a value") << QStringList{"--help=1"} << not_understood;
    QTest::newRow("listing with a value") << QStringList{"--ls=all"} << not_understood;
    QTest::newRow("two pairs of the same name") << QStringList{"-l=Test", "--lang=Other", "-s=Plain", "-p=."} << not_understood;
    QTest::newRow("force twice") << QStringList{"-l=Test", "-s=Plain", "-p=.", "-f", "--force"} << not_understood;
}

void test_fixed_outputs_and_refusals::refuses_words() {
    QFETCH(QStringList, words);
    QFETCH(QByteArray, message);
    installed_bundle bundle;
    bundle.write_file("a.tst", "a  b\n");
    COMPARE_RUN(bundle.run(words), message, "", 1);
    QCOMPARE(temporary_bundle::contents_of(bundle.work_directory() + "/a.tst"), QByteArray("a  b\n"));
}

void test_fixed_outputs_and_refusals::without_a_terminal_never_asks_for_the_agreement() {
    installed_bundle bundle;
    COMPARE_RUN(bundle.run({"-v"}, run_options{false, "n\n", {}, {}, 20000, {}}), "Style Tarnel, version 2.0.0\n", "", 0);
    QVERIFY(!QFile::exists(bundle.config_home() + "/Style Tarnel/Style Tarnel.conf"));
}

void test_fixed_outputs_and_refusals::a_person_at_a_terminal_accepts_the_agreement_once() {
    // script(1) gives the program a terminal as its standard input.
    installed_bundle bundle;
    auto at_terminal = [&](QByteArray const& answer) {
        QProcess process;
        process.setProcessEnvironment(bundle.environment());
        process.start("script", {"-qec", "'" + bundle.executable() + "' -v", "/dev/null"});
        process.waitForStarted();
        process.write(answer);
        process.closeWriteChannel();
        process.waitForFinished(20000);
        return process.readAllStandardOutput();
    };
    QByteArray const declined = at_terminal("n\n");
    QVERIFY2(declined.contains("Do you accept these terms? [y/n]"), declined);
    QVERIFY(!declined.contains("version 2.0.0"));
    QByteArray const accepted = at_terminal("y\n");
    QVERIFY2(accepted.contains("Style Tarnel, version 2.0.0"), accepted);
    QByteArray const later = at_terminal("");
    QVERIFY(!later.contains("Do you accept"));
    QVERIFY(later.contains("Style Tarnel, version 2.0.0"));
}

QTEST_GUILESS_MAIN(test_fixed_outputs_and_refusals)
#include "test_fixed_outputs_and_refusals.moc"
