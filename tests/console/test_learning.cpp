// Learning a style on the command line: a style learned from C files is installed and reported in
// one line; every refusal says why and installs nothing; SIGINT midway installs nothing.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <csignal>

namespace {

QString our_c_plugin() { return built::build_dir() + "/PlugIns/languages/libc-language-plugin.so"; }

// A bundle with the test languages and our C plugin, with a GNU style of C installed, and in its
// work directory: C code in proj/ (the examples, `copies` times over), Python code in files named
// as C in py/, and a directory without C files in empty/.
struct learning_bundle : installed_bundle {
    explicit learning_bundle(int copies = 1) {
        add_plugin(our_c_plugin());
        add_addon(addon_file("GNU", "C"), addon_text("GNU", "C"));
        QDir const examples(built::source_dir() + "/examples/c");
        for (int copy = 0; copy < copies; ++copy)
            for (QString const& file : examples.entryList(QDir::Files, QDir::Name))
                write_file(QString("proj/%1/%2").arg(copy).arg(file), contents_of(examples.filePath(file)));
        QByteArray const python = "import os\n\ndef walk(top):\n    for name in os.listdir(top):\n"
                                  "        print(name)\n    return top\n";
        for (auto const& name : {"py/a.c", "py/b.c", "py/c.h"})
            write_file(name, python);
        write_file("empty/notes.txt", "no code\n");
    }
};

}  // namespace

class test_learning : public QObject {
    Q_OBJECT

private slots:
    void refuses_data() {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QByteArray>("err");
        QTest::newRow("language without the learning interface")
            << QStringList{"-l=Test", "--learn=House", "-p=proj"} << QByteArray("Language 'Test' cannot learn styles.\n");
        QTest::newRow("no such language")
            << QStringList{"-l=Nope", "--learn=House", "-p=proj"}
            << QByteArray("There is no language 'Nope'. Please run app with '--ls' flag to see what supported.\n");
        QTest::newRow("style that exists") << QStringList{"-l=C", "--learn=GNU", "-p=proj"}
                                           << QByteArray("Invalid name of style 'GNU', such style already exists.\n");
        QTest::newRow("bad name") << QStringList{"-l=C", "--learn=Haus\xc3\xa9", "-p=proj"}
                                  << QByteArray("Invalid name of style 'Haus\xc3\xa9', it must be in English.\n");
        QTest::newRow("path without files of the language")
            << QStringList{"-l=C", "--learn=House", "-p=empty"} << QByteArray("No files was found, no style was learned.\n");
        QTest::newRow("files of another language")
            << QStringList{"-l=C", "--learn=House", "-p=py"}
            << QByteArray("No style was learned: the files found are no code of language 'C'.\n");
        QTest::newRow("bad extensions") << QStringList{"-l=C", "--learn=House", "-p=proj", "--exts=c.old"}
                                        << QByteArray("Filename extension may contain English letters and digits only.\n");
    }
    void refuses() {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, err);
        learning_bundle bundle;
        QStringList const before = bundle.installed_addons();
        run_options options;
        options.working_directory = bundle.work_directory();
        COMPARE_RUN(bundle.run(words, options), err, QByteArray(), 1);
        QCOMPARE(bundle.installed_addons(), before);
    }

    void installs_the_learned_style() {
        learning_bundle bundle;
        run_options options;
        options.working_directory = bundle.work_directory();
        options.timeout_ms = 600000;  // the search's whole bound, under the sanitizers too
        run_result const result = bundle.run({"-l=C", "--learn=House", "-p=proj", "--exts=c,h"}, options);
        QCOMPARE(QString::fromUtf8(result.err), QString());
        QCOMPARE(result.status, 0);
        QRegularExpression const line("^Style 'House' of language 'C' was learned from 3 files: it leaves "
                                      "\\d+\\.\\d% of their \\d+ lines as they are\\.\n$");
        QVERIFY2(line.match(QString::fromUtf8(result.out)).hasMatch(), result.out.constData());
        QVERIFY(bundle.installed_addons().contains("House[C].style"));
        // The new style revises as any other.
        run_result const revision = bundle.run({"-l=C", "-s=House", "-p=proj"}, options);
        QCOMPARE(revision.status, 0);
        QVERIFY2(revision.out.contains("3 files was found, 3 files was revised"), revision.out.constData());
    }

    // Learning starts from the project's own engine configuration, where the directory learned from
    // holds one, and from the installed styles of the language: a plugin that takes starts gets
    // them in that order, and a start it takes is installed under the new name and named in the report; one built
    // against the learning interface alone is asked as before, and its style installed as it learned
    // it. The test plugins always learn a style that doubles every single blank; the one taking
    // starts keeps a start that leaves more. Faults caught: the installed styles not given as
    // starts, a start taken but not named or named when not taken, the new style installed under
    // the start's name, a plugin without the new interface not asked to learn.
    void learns_from_the_installed_styles_data() {
        QTest::addColumn<bool>("takes_starts");
        QTest::addColumn<QByteArray>("code");
        // The project's .clang-format, none when empty.
        QTest::addColumn<QByteArray>("configuration");
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("an installed style leaves more")
            << true << QByteArray("begin a b end\nbegin c end\n") << QByteArray() << QByteArray("begin SOME end")
            << QByteArray("Style 'House' of language 'Test' was learned from 1 file: it leaves 100.0% of their 2 "
                          "lines as they are. It has the forms of style 'Plain', which leave more of them as they "
                          "are than any rules learned.\n");
        QTest::newRow("the learned style leaves more")
            << true << QByteArray("begin  a  end\nbegin  c  end\n") << QByteArray() << QByteArray("begin  SOME  end")
            << QByteArray("Style 'House' of language 'Test' was learned from 1 file: it leaves 100.0% of their 2 "
                          "lines as they are.\n");
        QTest::newRow("a plugin that takes no starts")
            << false << QByteArray("begin a b end\nbegin c end\n") << QByteArray() << QByteArray("begin  SOME  end")
            << QByteArray("Style 'House' of language 'Test' was learned from 1 file: it leaves 0.0% of their 2 "
                          "lines as they are.\n");
        QTest::newRow("the project's own configuration leaves as many as an installed style")
            << true << QByteArray("begin a b end\nbegin c end\n") << QByteArray("begin   SOME end\n")
            << QByteArray("begin   SOME end")
            << QByteArray("Style 'House' of language 'Test' was learned from 1 file: it leaves 100.0% of their 2 "
                          "lines as they are. It has the forms of the project's own '.clang-format', which leave "
                          "more of them as they are than any rules learned.\n");
    }
    void learns_from_the_installed_styles() {
        QFETCH(bool, takes_starts);
        QFETCH(QByteArray, code);
        QFETCH(QByteArray, configuration);
        QFETCH(QByteArray, form);
        QFETCH(QByteArray, out);
        temporary_bundle bundle;
        if (!configuration.isEmpty())
            bundle.write_file("proj/.clang-format", configuration);
        bundle.add_plugin(takes_starts ? built::starts_learning_language_plugin() : built::learning_language_plugin());
        bundle.add_addon(addon_file("Plain", "Test"), addon_text("Plain", "Test"));
        bundle.write_file("proj/a.tst", code);
        run_options options;
        options.working_directory = bundle.work_directory();
        COMPARE_RUN(bundle.run({"-l=Test", "--learn=House", "-p=proj"}, options), QByteArray(), out, 0);
        QCOMPARE(bundle.installed_addons(), (QStringList{"House[Test].style", "Plain[Test].style"}));
        QCOMPARE(bundle.contents_of(bundle.addons_directory() + "/House[Test].style"), addon_text("House", "Test", form));
        QCOMPARE(bundle.contents_of(bundle.addons_directory() + "/Plain[Test].style"), addon_text("Plain", "Test"));
    }

    // What the ignore rules leave out of a revision (vendored, generated code) is no example of the
    // project's style. Fault caught: learning from the files a .style-tarnel-ignore names.
    void learns_from_the_files_the_project_keeps() {
        temporary_bundle bundle;
        bundle.add_plugin(built::learning_language_plugin());
        bundle.write_file("proj/a.tst", "begin  a  end\n");
        bundle.write_file("proj/vendor/b.tst", "begin b c end\n");
        bundle.write_file("proj/.style-tarnel-ignore", "vendor/\n");
        run_options options;
        options.working_directory = bundle.work_directory();
        COMPARE_RUN(bundle.run({"-l=Test", "--learn=House", "-p=proj"}, options), QByteArray(),
                    QByteArray("Style 'House' of language 'Test' was learned from 1 file: it leaves 100.0% of their 1 "
                               "lines as they are.\n"),
                    0);
    }

    // The stop request is read while the plugin learns: the signal is sent once the program has
    // taken SIGINT over, and the run ends with nothing installed.
    void interrupted_run_installs_nothing() {
        learning_bundle bundle(150);
        QStringList const before = bundle.installed_addons();
        QProcess process;
        run_options options;
        options.working_directory = bundle.work_directory();
        bundle.start(process, {"-l=C", "--learn=House", "-p=proj"}, options);
        QVERIFY(process.waitForStarted());
        QString const status_file = QString("/proc/%1/status").arg(process.processId());
        bool caught = false;
        for (int i = 0; i < 3000 && !caught && process.state() == QProcess::Running; ++i) {
            QFile status(status_file);
            if (status.open(QIODevice::ReadOnly))
                for (QByteArray const& field : status.readAll().split('\n'))
                    if (field.startsWith("SigCgt:"))
                        caught = (field.mid(7).trimmed().toULongLong(nullptr, 16) & (1ULL << (SIGINT - 1))) != 0;
            if (!caught)
                QTest::qWait(5);
        }
        QVERIFY(caught);
        ::kill(static_cast<pid_t>(process.processId()), SIGINT);
        run_result const result = result_of_finished(process, 120000);
        COMPARE_RUN(result, QByteArray("Learning was interrupted by user, no style was installed.\n"), QByteArray(), 1);
        QCOMPARE(bundle.installed_addons(), before);
    }
};

QTEST_GUILESS_MAIN(test_learning)
#include "test_learning.moc"
