// A revision through the copied executable, file by file: which files a run takes, what becomes
// of each (changed, unchanged, refused by the plugin, not writable, empty, behind a symbolic
// link), the report on both streams, what the plugin was handed, and the records that decide
// what the next run revises again.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

namespace {

QByteArray const preparing = "Preparing, please wait...\r";
QByteArray const done = "It's done." + QByteArray(25, ' ') + "\n";

QByteArray progress(int found) {
    QByteArray steps = preparing;
    for (int revised = 1; revised <= found; ++revised)
        steps += "Revise... " + QByteArray::number(revised) + " from " + QByteArray::number(found) + " files\r";
    return steps;
}

QByteArray refused(QByteArray const& file) {
    return "Sorry, I can't revise file '%S/" + file +
           "', because it contains syntax error, or language structure that cannot be formatted correctly.\n\n";
}

void set_modification_time_ahead(QString const& path) {
    qint64 const later = QDateTime::currentSecsSinceEpoch() + 5;
    struct utimbuf times {};
    times.actime = times.modtime = static_cast<time_t>(later);
    ::utime(QFile::encodeName(path).constData(), &times);
}

// A bundle with the test languages, an addon with an invalid form, and files below src/ given
// as "name=content".
struct revision_bundle : installed_bundle {
    explicit revision_bundle(QStringList const& files) {
        add_addon("Broken[Test].style", addon_text("Broken", "Test", "start SOME stop"));
        for (QString const& file : files)
            write_file("src/" + file.section('=', 0, 0), file.section('=', 1).toUtf8());
        log = home() + "/plugin.log";
        logging.extra_environment.insert("TEST_PLUGIN_LOG", log);
    }
    QString source(QString const& name) const { return work_directory() + "/src/" + name; }
    // The run, and the lines the plugin logged during it.
    run_result revise(QStringList const& words, QStringList& logged, run_options options = run_options()) {
        QFile::remove(log);
        options.extra_environment = logging.extra_environment;
        run_result const result = run(words, options);
        logged.clear();
        for (QByteArray const& line : contents_of(log).split('\n'))
            if (!line.isEmpty())
                logged << QString::fromUtf8(line.mid(line.indexOf(' ') + 1));
        return result;
    }
    QString log;
    run_options logging;
};

}  // namespace

class test_revision : public QObject {
    Q_OBJECT
private slots:
    void outcomes_per_file_data();
    void outcomes_per_file();
    void records_decide_what_the_next_run_revises_data();
    void records_decide_what_the_next_run_revises();
    void of_two_plugins_of_a_language_uses_the_first_listed_data();
    void of_two_plugins_of_a_language_uses_the_first_listed();
};

// Each row: the files, the paths named (below src/; none: src itself), the style, what the run
// prints on both streams (%S: the sources directory), the files afterwards (none: as before),
// what the plugin was asked, and whether to run as the unprivileged user.
void test_revision::outcomes_per_file_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QStringList>("logged");
    QTest::addColumn<bool>("unprivileged");
    QStringList const none;
    QStringList const end{"end_of_revision"};
    QString const plain = "Plain";
    QTest::newRow("changed") << QStringList{"a.tst=x  y\n"} << none << plain
                             << done + "1 file was found, 1 file was revised, 1 file was changed.\n" << progress(1)
                             << QStringList{"a.tst=x y\n"} << QStringList{"revise 0a 20 5", "end_of_revision"} << false;
    QTest::newRow("unchanged, in two folders") << QStringList{"a.tst=x y", "sub/b.test=z"} << none << plain
        << done + "2 files was found, 2 files was revised, no files was changed.\n" << progress(2) << none
        << QStringList{"revise - - 3", "revise - - 1", "end_of_revision"} << false;
    QTest::newRow("other extensions and links are not taken")
        << QStringList{"a.txt=x  y", "tree/real.tst=x  y"} << QStringList{"tree"} << plain
        << done + "1 file was found, 1 file was revised, 1 file was changed.\n" << progress(1)
        << QStringList{"a.txt=x  y", "tree/real.tst=x y"} << QStringList{"revise - - 4"} + end << false;
    QTest::newRow("no file found") << QStringList{"a.txt=x  y"} << none << plain
                                   << done + "No files was found, revision was canceled.\n" << preparing << none << end
                                   << false;
    QTest::newRow("an empty file is revised without the plugin")
        << QStringList{"a.tst="} << none << plain
        << done + "1 file was found, 1 file was revised, no files was changed.\n" << preparing << none << end
        << false;
    QTest::newRow("refused, and the run goes on")
        << QStringList{"a.tst=THROW  a", "b.tst=EMPTY  b", "c.tst=SYNTAX_ERROR  c", "d.tst=d  d"}
        << QStringList{"a.tst", "b.tst", "c.tst", "d.tst"} << plain
        << done + refused("a.tst") + refused("b.tst") + refused("c.tst") +
               "4 files was found, 4 files was revised, 1 file was changed.\n"
        << progress(4) << QStringList{"a.tst=THROW  a", "b.tst=EMPTY  b", "c.tst=SYNTAX_ERROR  c", "d.tst=d d"}
        << QStringList{"revise - - 8", "revise - - 8", "revise - - 15", "revise - - 4"} + end << false;
    QTest::newRow("not writable") << QStringList{"a.tst=x  y", "b.tst=z  z"} << none << plain
        << done + "Sorry, I can't revise file '%S/a.tst'. If this file exists - please check read/write "
                  "permissions.\n\n2 files was found, 1 file was revised, 1 file was changed.\n"
        << preparing + "Revise... 1 from 2 files\r" << QStringList{"a.tst=x  y", "b.tst=z z"} << QStringList{"revise - - 4"} + end << true;
    QTest::newRow("the line ending and space handed to the plugin")
        << QStringList{"a.tst=a\r\nb\r\n", QString::fromLatin1("b.tst=a\0\n\0", 10)} << QStringList{"a.tst", "b.tst"} << plain
        << done + "2 files was found, 2 files was revised, no files was changed.\n" << progress(2) << none
        << QStringList{"revise 0d0a 20 6", "revise 0a00 2000 4"} + end << false;
    QTest::newRow("an addon with an invalid form") << QStringList{"a.tst=x  y"} << none << QString("Broken")
        << QByteArray("Sorry, format of structure 'block' in the style addon 'Broken[Test].style' is invalid. Please make "
           "sure this addon corresponds to requirements specified at "
           "https://style-tarnel.org/user-guide/style-addon-by-hand.\n\n\n")
        << preparing << none << none << false;
}

void test_revision::outcomes_per_file() {
    QFETCH(QStringList, files);
    QFETCH(QStringList, named);
    QFETCH(QString, style);
    QFETCH(QByteArray, out);
    QFETCH(QByteArray, err);
    QFETCH(QStringList, after);
    QFETCH(QStringList, logged);
    QFETCH(bool, unprivileged);
    revision_bundle bundle(files);
    // A link to a file and a link to a folder outside the sources: neither is followed.
    QString const outside = bundle.write_file("outside/x.tst", "x  y");
    QFile::link(outside, bundle.source("tree/link.tst"));
    QFile::link(bundle.work_directory() + "/outside", bundle.source("tree/folder"));
    if (unprivileged) {
        bundle.share_with_unprivileged_user();
        QFile::setPermissions(bundle.work_directory() + "/src", QFile::permissions(bundle.work_directory()) |
                                                                    QFile::WriteOther);
        QFile::setPermissions(bundle.source("a.tst"), QFile::ReadOwner | QFile::ReadOther);
        // The user's own file: only its owner may be given the rewritten file.
        QVERIFY(::chown(QFile::encodeName(bundle.source("b.tst")).constData(), 65534, 65534) == 0);
    }
    // A changed file keeps its permissions and owner.
    QByteArray const first = QFile::encodeName(bundle.source(files.first().section('=', 0, 0)));
    bool const changed_row = QTest::currentDataTag() == QByteArray("changed");
    if (changed_row)
        QVERIFY(::chmod(first.constData(), 0751) == 0 && ::chown(first.constData(), 65534, 65534) == 0);
    QStringList words{"-l=Test", "-s=" + style};
    for (QString const& name : named)
        words << "-p=src/" + name;
    if (named.isEmpty())
        words << "-p=src";
    QStringList got;
    run_options options;
    options.unprivileged = unprivileged;
    run_result const result = bundle.revise(words, got, options);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(QByteArray(out).replace("%S", (bundle.work_directory() + "/src").toUtf8())));
    QCOMPARE(QString::fromUtf8(result.err), QString::fromUtf8(err));
    QCOMPARE(result.status, 0);
    for (QString const& file : after.isEmpty() ? files : after)
        QCOMPARE(bundle.contents_of(bundle.source(file.section('=', 0, 0))), file.section('=', 1).toUtf8());
    QCOMPARE(bundle.contents_of(outside), QByteArray("x  y"));
    struct stat status {};
    if (changed_row && ::stat(first.constData(), &status) == 0)
        QVERIFY((status.st_mode & 07777) == 0751 && status.st_uid == 65534 && status.st_gid == 65534);
    QCOMPARE(got, logged);
}

// Each row: the files, then runs one after the other: "<style> [flags] => <report>", or
// "touch <file>" to save a file or an addon again.
void test_revision::records_decide_what_the_next_run_revises_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("steps");
    QString const all = "3 files was found, 3 files was revised, ";
    QTest::newRow("unchanged files are skipped until saved")
        << QStringList{"a.tst=x  y", "b.tst=x y", "c.tst=x y"}
        << QStringList{"Plain => " + all + "1 file was changed.", "Plain => 3 files was found, no files was revised.",
                       "touch src/b.tst", "Plain => 3 files was found, 1 file was revised, no files was changed."};
    QTest::newRow("another style or a saved addon revises again")
        << QStringList{"a.tst=x y", "b.tst=x y", "c.tst=x y"}
        << QStringList{"Plain => " + all + "no files was changed.", "Wide => " + all + "no files was changed.",
                       "Wide => 3 files was found, no files was revised.", "touch addon Wide[Test].style",
                       "Wide => " + all + "no files was changed."};
    QTest::newRow("a forced run forgets the records, even when it fails")
        << QStringList{"a.tst=x y", "b.tst=x y", "c.tst=x y"}
        << QStringList{"Plain => " + all + "no files was changed.", "Nope -f => ",
                       "Plain => " + all + "no files was changed.", "Plain --force=yes => " + all + "no files was changed."};
    QTest::newRow("refused files wait until they change")
        << QStringList{"a.tst=SYNTAX_ERROR  a", "b.tst=THROW  b", "c.tst=x y"}
        << QStringList{"Plain => *", "Plain => 3 files was found, no files was revised."};
    QTest::newRow("an empty file gets no record")
        << QStringList{"a.tst="}
        << QStringList{"Plain => 1 file was found, 1 file was revised, no files was changed.",
                       "Plain => 1 file was found, 1 file was revised, no files was changed."};
}

void test_revision::records_decide_what_the_next_run_revises() {
    QFETCH(QStringList, files);
    QFETCH(QStringList, steps);
    revision_bundle bundle(files);
    QStringList logged;
    for (QString const& step : steps) {
        if (step.startsWith("touch addon "))
            set_modification_time_ahead(bundle.addons_directory() + "/" + step.mid(12));
        else if (step.startsWith("touch "))
            set_modification_time_ahead(bundle.work_directory() + "/" + step.mid(6));
        if (step.startsWith("touch "))
            continue;
        QStringList words{"-l=Test", "-p=src", "-s=" + step.section(" => ", 0, 0).section(' ', 0, 0)};
        words += step.section(" => ", 0, 0).section(' ', 1).split(' ', Qt::SkipEmptyParts);
        run_result const result = bundle.revise(words, logged);
        QByteArray const report = step.section(" => ", 1).toUtf8();
        if (report == "*")
            continue;
        if (report.isEmpty())
            QCOMPARE(result.status, 1);
        else
            QCOMPARE(QString::fromUtf8(result.out), QString::fromUtf8(done + report + "\n"));
    }
}

void test_revision::of_two_plugins_of_a_language_uses_the_first_listed_data() {
    QTest::addColumn<QString>("twin_as");
    QTest::addColumn<QByteArray>("used");  // the tag the used plugin writes in its log
    QTest::newRow("the twin listed first") << "liba-language-plugin.so" << QByteArray("twin-language-plugin");
    QTest::newRow("the twin listed last") << "libz-language-plugin.so" << QByteArray("test-language-plugin");
}

void test_revision::of_two_plugins_of_a_language_uses_the_first_listed() {
    QFETCH(QString, twin_as);
    QFETCH(QByteArray, used);
    revision_bundle bundle({"a.tst=x  y"});
    bundle.add_plugin(built::twin_language_plugin(), twin_as);
    QStringList logged;
    bundle.revise({"-l=Test", "-s=Plain", "-p=src"}, logged);
    QCOMPARE(bundle.contents_of(bundle.log), used + " revise - - 4\n" + used + " end_of_revision\n");
}

QTEST_GUILESS_MAIN(test_revision)
#include "test_revision.moc"
