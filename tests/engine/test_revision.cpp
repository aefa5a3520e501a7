// A revision through the copied executable, file by file: which files a run takes, what becomes
// of each (changed, unchanged, refused by the plugin, not writable, empty, behind a symbolic
// link), the report on both streams, what the plugin was handed, and the records that decide
// what the next run revises again.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utime.h>

namespace {

QByteArray const done = "It's done." + QByteArray(25, ' ') + "\n";

void set_modification_time_ahead(QString const& path) {
    qint64 const later = QDateTime::currentSecsSinceEpoch() + 5;
    struct utimbuf times {};
    times.actime = times.modtime = static_cast<time_t>(later);
    ::utime(QFile::encodeName(path).constData(), &times);
}

// Writes `content` into the file in place and gives it back the second of its modification time,
// without nanoseconds, as a checkout in the same second might.
void restore_in_the_same_second(QString const& path, QByteArray const& content) {
    QByteArray const native = QFile::encodeName(path);
    struct stat before {};
    ::stat(native.constData(), &before);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(content);
    file.close();
    struct timespec const times[2] = {{before.st_mtim.tv_sec, 0}, {before.st_mtim.tv_sec, 0}};
    ::utimensat(AT_FDCWD, native.constData(), times, 0);
}

// Rewrites every change record in the older form: [revision time, language, style, addon time]
// in whole seconds, here a minute ahead.
void write_records_in_the_older_form(QString const& config_home) {
    QSettings store(config_home + "/Style Tarnel/Style Tarnel records.conf", QSettings::IniFormat);
    uint const ahead = static_cast<uint>(QDateTime::currentSecsSinceEpoch() + 60);
    for (QString const& key : store.allKeys()) {
        QVariantList const record = store.value(key).toList();
        store.setValue(key, QVariantList{ahead, record.value(1), record.value(2), ahead});
    }
}

// A bundle with the test languages, an addon with an invalid form, and files below src/ given
// as "name=content".
struct revision_bundle : installed_bundle {
    explicit revision_bundle(QStringList const& files) {
        add_addon("Broken[Test].style", addon_text("Broken", "Test", "start SOME stop"));
        for (QString const& file : files)
            write_file("src/" + file.section('=', 0, 0), unescaped(file.section('=', 1)));
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
                logged << QString::fromUtf8(line.startsWith("test-language-plugin ") ? line.mid(21) : line);
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
    void a_file_keeps_its_attributes_and_links_data();
    void a_file_keeps_its_attributes_and_links();
    void records_decide_what_the_next_run_revises_data();
    void records_decide_what_the_next_run_revises();
};

// The rows come from outcomes.txt, which tells what each column holds.
void test_revision::outcomes_per_file_data() {
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("named");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QByteArray>("out");
    QTest::addColumn<QByteArray>("err");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<bool>("unprivileged");
    QTest::addColumn<QString>("twin");
    QTest::addColumn<int>("exit_status");
    for (auto const& row : cases_in(QFINDTESTDATA("outcomes.txt")))
        QTest::newRow(qPrintable(row["case"])) << row["files"] << row["named"] << row["style"] << unescaped(row["out"])
                                               << unescaped(row["err"]) << row["after"] << row["logged"]
                                               << (row["as"] == "nobody") << row["twin"] << row["status"].toInt();
}

void test_revision::outcomes_per_file() {
    QFETCH(QString, files);
    QFETCH(QString, named);
    QFETCH(QString, style);
    QFETCH(QByteArray, out);
    QFETCH(QByteArray, err);
    QFETCH(QString, after);
    QFETCH(QString, logged);
    QFETCH(bool, unprivileged);
    QFETCH(QString, twin);
    QFETCH(int, exit_status);
    QStringList const sources = files.split(" | ");
    revision_bundle bundle(sources);
    if (!twin.isEmpty())
        bundle.add_plugin(built::twin_language_plugin(), twin);
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
    QByteArray const first = QFile::encodeName(bundle.source(sources.first().section('=', 0, 0)));
    bool const changed_row = QTest::currentDataTag() == QByteArray("changed");
    if (changed_row)
        QVERIFY(::chmod(first.constData(), 0751) == 0 && ::chown(first.constData(), 65534, 65534) == 0);
    QStringList words{"-l=Test", "-s=" + style};
    for (QString const& name : named.isEmpty() ? QStringList{""} : named.split(" | "))
        words << (name.isEmpty() ? "-p=src" : "-p=src/" + name);
    QStringList got;
    run_options options;
    options.unprivileged = unprivileged;
    run_result const result = bundle.revise(words, got, options);
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(QByteArray(out).replace("%S", (bundle.work_directory() + "/src").toUtf8())));
    QCOMPARE(QString::fromUtf8(result.err), QString::fromUtf8(err));
    QCOMPARE(result.status, exit_status);
    for (QString const& file : after.isEmpty() ? sources : after.split(" | "))
        QCOMPARE(bundle.contents_of(bundle.source(file.section('=', 0, 0))), unescaped(file.section('=', 1)));
    QCOMPARE(bundle.contents_of(outside), QByteArray("x  y"));
    struct stat status {};
    if (changed_row && ::stat(first.constData(), &status) == 0)
        QVERIFY((status.st_mode & 07777) == 0751 && status.st_uid == 65534 && status.st_gid == 65534);
    QCOMPARE(got.join(" | "), logged);
}

// A revised file is a new file put in the old one's place: it keeps the old one's extended
// attributes; a file with a second name (a hard link) is refused, both names keep one file.
void test_revision::a_file_keeps_its_attributes_and_links_data() {
    QTest::addColumn<bool>("linked");
    QTest::newRow("an extended attribute") << false;
    QTest::newRow("a second name") << true;
}

void test_revision::a_file_keeps_its_attributes_and_links() {
    QFETCH(bool, linked);
    revision_bundle bundle({"a.tst=x  y"});
    QByteArray const file = QFile::encodeName(bundle.source("a.tst"));
    QByteArray const other = QFile::encodeName(bundle.work_directory() + "/a.other");
    QVERIFY(::setxattr(file.constData(), "user.tarnel", "kept", 4, 0) == 0);
    if (linked)
        QVERIFY(::link(file.constData(), other.constData()) == 0);
    QStringList logged;
    run_result const result = bundle.revise({"-l=Test", "-s=Plain", "-p=src"}, logged);
    // The one file of the run refused: nothing was done that was asked.
    QCOMPARE(result.status, linked ? 1 : 0);
    char value[16] = {};
    QCOMPARE(::getxattr(file.constData(), "user.tarnel", value, sizeof value), ssize_t(4));
    QCOMPARE(QByteArray(value), QByteArray("kept"));
    if (!linked) {
        QCOMPARE(result.out, done + "1 file was found, 1 file was revised, 1 file was changed.\n");
        QCOMPARE(bundle.contents_of(bundle.source("a.tst")), QByteArray("x y"));
        return;
    }
    QCOMPARE(QString::fromUtf8(result.out),
             QString::fromUtf8(done + "Sorry, I can't revise file '" + file +
                               "', because it has several hard links, which a revision would separate.\n\n"
                               "1 file was found, no files was revised.\n"));
    QCOMPARE(logged, QStringList{"end_of_revision"});
    struct stat one {}, two {};
    QVERIFY(::stat(file.constData(), &one) == 0 && ::stat(other.constData(), &two) == 0);
    QVERIFY(one.st_ino == two.st_ino);
    QCOMPARE(bundle.contents_of(bundle.source("a.tst")), QByteArray("x  y"));
}

// The rows come from records.txt, which tells what each column holds.
void test_revision::records_decide_what_the_next_run_revises_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("steps");
    for (auto const& row : cases_in(QFINDTESTDATA("records.txt"))) {
        QStringList steps;
        for (QString const& key : row.keys())
            if (key.startsWith("step "))
                steps << row[key];
        QTest::newRow(qPrintable(row["case"])) << row["files"].split(" | ") << steps;
    }
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
        if (step.startsWith("restore "))
            restore_in_the_same_second(bundle.work_directory() + "/" + step.mid(8).section('=', 0, 0),
                                       unescaped(step.section('=', 1)));
        if (step == "older records")
            write_records_in_the_older_form(bundle.config_home());
        if (step.startsWith("touch ") || step.startsWith("restore ") || step == "older records")
            continue;
        QStringList words{"-l=Test", "-p=src", "-s=" + step.section(' ', 0, 0)};
        words += step.section(" => ", 0, 0).section(' ', 1).split(' ', Qt::SkipEmptyParts);
        run_result const result = bundle.revise(words, logged);
        QByteArray const report = step.section(" => ", 1).trimmed().toUtf8();
        if (report == "*")
            continue;
        if (report == "refused")
            QCOMPARE(result.status, 1);
        else
            QCOMPARE(QString::fromUtf8(result.out), QString::fromUtf8(done + report + "\n"));
    }
}

QTEST_GUILESS_MAIN(test_revision)
#include "test_revision.moc"
