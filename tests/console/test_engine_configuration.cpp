// A style as the engine configuration that editors read, and a style made from one, on the command
// line: the file written (or refused) where it is asked for, the options a style cannot carry
// named, a plugin without configurations refused; and the engine under an exported or imported
// configuration formats a C file to the same bytes as a revision with the style.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

#include <algorithm>

namespace {

QString our_c_plugin() { return built::build_dir() + "/PlugIns/languages/libc-language-plugin.so"; }

// The test languages, our C plugin with the bundled GNU style of C, and the work directory's files
// ("name=content", separated by " | ").
struct configuration_bundle : installed_bundle {
    explicit configuration_bundle(QString const& files = QString()) {
        add_plugin(our_c_plugin());
        add_addon("GNU[C].style", contents_of(built::build_dir() + "/PlugIns/styles/GNU[C].style"));
        QDir(work_directory()).mkpath("out");
        for (QString const& file : files.split(" | ", Qt::SkipEmptyParts)) {
            int const at = file.indexOf('=');
            write_file(file.left(at), unescaped(file.mid(at + 1)));
        }
    }
};

QByteArray const configuration_start = "# The options of a Style Tarnel style";

// The options of the document for a language in a configuration text, each its line and the lines
// nested under it, comments, blank lines and its language left out, sorted: the same options in
// any order.
QList<QByteArray> options_of(QByteArray const& configuration, QByteArray const& language = "Cpp") {
    QList<QByteArray> options;
    bool of_language = false;
    for (QByteArray const& line : configuration.split('\n')) {
        if (line.startsWith("Language:"))
            of_language = line.mid(9).trimmed() == language;
        else if (line == "---")
            of_language = false;
        else if (!of_language || line.trimmed().isEmpty() || line.startsWith('#') || line == "...")
            continue;
        else if (line.startsWith(' ') && !options.isEmpty())
            options.last() += "\n" + line;
        else
            options.append(line);
    }
    std::sort(options.begin(), options.end());
    return options;
}

// An option that says nothing of a revision of C or C++: one the engine reads only for other
// languages, or one of include sorting, which is off.
bool says_nothing_of_c(QByteArray const& option) {
    static QList<QByteArray> const starts = {"Java", "ObjC", "TableGen", "AlignConsecutiveTableGen", "Verilog",
                                             "BreakAfterJavaFieldAnnotations:", "SortJavaStaticImport:",
                                             "BreakArrays:", "SpaceBeforeJsonColon:", "InsertTrailingCommas:",
                                             "IncludeCategories:", "IncludeIsMainRegex:", "IncludeIsMainSourceRegex:"};
    return std::any_of(starts.begin(), starts.end(), [&](QByteArray const& start) { return option.startsWith(start); });
}

QString user_styles_of(temporary_bundle const& bundle) {
    return "user: " + QDir(bundle.user_addons_directory()).entryList(QDir::Files, QDir::Name).join(' ') +
           " | bundle: " + QDir(bundle.addons_directory()).entryList(QDir::Files, QDir::Name).join(' ');
}

}  // namespace

class test_engine_configuration : public QObject {
    Q_OBJECT
private slots:
    void answers_data();
    void answers();
    void the_engine_under_the_configuration_formats_as_the_revision_does_data();
    void the_engine_under_the_configuration_formats_as_the_revision_does();
};

// Rows from configurations.txt: the work directory's files, the words, the status, standard error
// and standard output (a value ending in "..." is a beginning), a file of the work directory and
// how it begins afterwards ("none": there is none), and the styles afterwards (none: unchanged).
void test_engine_configuration::answers_data() {
    QTest::addColumn<QString>("files");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("styles");
    for (auto const& row : cases_in(QFINDTESTDATA("configurations.txt")))
        QTest::newRow(qPrintable(row["case"])) << row["files"] << row["words"].split(" | ") << row["status"].toInt()
                                               << unescaped(row["err"]) << unescaped(row["out"]) << row["written"]
                                               << row["styles"];
}

void test_engine_configuration::answers() {
    QFETCH(QString, files);
    QFETCH(QStringList, words);
    QFETCH(int, status);
    QFETCH(QByteArray, err);
    QFETCH(QByteArray, out);
    QFETCH(QString, written);
    QFETCH(QString, styles);
    configuration_bundle const bundle(files);
    QString const before = user_styles_of(bundle);
    run_options options;
    options.working_directory = bundle.work_directory();
    run_result const result = bundle.run(words, options);
    QByteArray const W = bundle.work_directory().toUtf8();
    QCOMPARE(QString::fromUtf8(result.err), QString::fromUtf8(QByteArray(err).replace("%W", W)));
    if (out.endsWith("..."))
        QVERIFY2(result.out.startsWith(out.left(out.size() - 3)), result.out.left(200).constData());
    else
        QCOMPARE(QString::fromUtf8(result.out), QString::fromUtf8(out));
    QCOMPARE(result.status, status);
    if (!written.isEmpty()) {
        int const at = written.indexOf('=');
        QString const path = bundle.work_directory() + "/" + written.left(at);
        QByteArray const begins = unescaped(written.mid(at + 1));
        if (begins == "none")
            QVERIFY(!QFile::exists(path));
        else
            QVERIFY2(bundle.contents_of(path).startsWith(begins), qPrintable(path));
    }
    QCOMPARE(user_styles_of(bundle), styles.isEmpty() ? before : styles);
}

// The configuration is exported from a bundled style, or written by hand and imported as "Team".
void test_engine_configuration::the_engine_under_the_configuration_formats_as_the_revision_does_data() {
    QTest::addColumn<QString>("style");
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QString>("file");
    QTest::newRow("exported GNU") << "GNU" << QByteArray() << "sample.c";
    // A header naming a type of Objective-C's frameworks, which the engine takes for Objective-C.
    QTest::newRow("exported GNU, a header the engine takes for Objective-C") << "GNU" << QByteArray() << "sample.h";
    QTest::newRow("imported, braces on their own lines")
        << "Team" << QByteArray("BasedOnStyle: LLVM\nIndentWidth: 4\nBreakBeforeBraces: Allman\n") << "sample.c";
    QTest::newRow("imported, spaces before parentheses")
        << "Team" << QByteArray("BasedOnStyle: LLVM\nIndentWidth: 3\nSpaceBeforeParens: Always\nColumnLimit: 100\n")
        << "sample.c";
}

void test_engine_configuration::the_engine_under_the_configuration_formats_as_the_revision_does() {
    QFETCH(QString, style);
    QFETCH(QByteArray, configuration);
    QFETCH(QString, file);
    QString const engine = QStandardPaths::findExecutable("clang-format-19");
    if (engine.isEmpty())
        QSKIP("clang-format-19 is not installed");
    configuration_bundle const bundle;
    QString const work = bundle.work_directory();
    if (configuration.isEmpty()) {
        COMPARE_RUN(bundle.run({"--export-config=" + work + "/out", "-l=C", "-s=" + style}), "It's done.\n", "", 0);
        // Every option of C is written, and read back as written: the engine's own account of
        // what it read holds the same options, and more only for those that say nothing of C,
        // which are left out; the document for Objective-C holds the same.
        QProcess dumping;
        dumping.start(engine, {"--style=file:" + work + "/out/.clang-format", "--dump-config"});
        run_result const dumped = result_of_finished(dumping, 60000);
        QCOMPARE(dumped.status, 0);
        QByteArray const written = bundle.contents_of(work + "/out/.clang-format");
        QList<QByteArray> const exported = options_of(written), read = options_of(dumped.out);
        QVERIFY(!exported.isEmpty());
        QCOMPARE(options_of(written, "ObjC"), exported);
        for (QByteArray const& option : exported) {
            QVERIFY2(read.contains(option), option.constData());
            QVERIFY2(!says_nothing_of_c(option), option.constData());
        }
        for (QByteArray const& option : read)
            QVERIFY2(exported.contains(option) || says_nothing_of_c(option), option.constData());
    } else {
        bundle.write_file("out/.clang-format", configuration);
        run_result const imported = bundle.run({"--import=" + work + "/out/.clang-format", "--lang=C", "--style=" + style});
        QCOMPARE(imported.status, 0);
    }
    QByteArray const code = QByteArray(file.endsWith(".h") ? "typedef double CGFloat;\n" : "") +
                            "#include <stdio.h>\nstatic int twice(int x){return 2*x;}\n"
                            "int main(void){int i;for(i=0;i<3;i++){if(i>1){printf(\"%d\\n\",twice(i));}else{"
                            "continue;}}\nswitch(i){case 1:break;default:return 1;}\nreturn 0;}\n";
    QString const path = bundle.write_file("out/" + file, code);
    QProcess process;
    process.start(engine, {"--style=file:" + work + "/out/.clang-format", "--sort-includes=false", path});
    run_result const formatted = result_of_finished(process, 60000);
    QCOMPARE(QString::fromUtf8(formatted.err), QString());
    QCOMPARE(formatted.status, 0);
    QVERIFY(formatted.out != code);
    QCOMPARE(bundle.run({"-l=C", "-s=" + style, "-p=" + path}).status, 0);
    QCOMPARE(bundle.contents_of(path), formatted.out);
}

QTEST_GUILESS_MAIN(test_engine_configuration)
#include "test_engine_configuration.moc"
