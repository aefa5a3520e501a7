// A run on several workers: the same files, report and records as on one worker; a stop leaves
// every file either as it was or fully revised; a plugin that does not declare that its revise()
// may run on several threads is never called from two at once.
#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDir>
#include <QSettings>
#include <QtTest>

#include <csignal>
#include <unistd.h>

namespace {

// The files of a tree with every outcome: changed, unchanged, refused, failing, empty, and not
// writable by the user who runs the revision.
QMap<QString, QByteArray> const tree = [] {
    QMap<QString, QByteArray> files;
    for (int i = 0; i < 4; ++i) {
        QString const n = QString::number(i);
        files["changed" + n + ".tst"] = "a  b " + n.toUtf8();
        files["unchanged" + n + ".tst"] = "a b " + n.toUtf8();
        files["refused" + n + ".tst"] = "SYNTAX_ERROR  " + n.toUtf8();
        files["kept" + n + ".tst"] = "c  d " + n.toUtf8();
    }
    files["failing.tst"] = "THROW  x";
    files["empty.tst"] = "";
    // Refused while later files are done: its line still comes first.
    files["emptied.tst"] = "EMPTY  SLOW";
    return files;
}();

struct tree_bundle : installed_bundle {
    explicit tree_bundle(QString const& plugin) {
        QFile::remove(plugins_directory() + "/libtest-language-plugin.so");
        add_plugin(plugin, "libtest-language-plugin.so");
        for (auto file = tree.begin(); file != tree.end(); ++file)
            write_file("src/" + file.key(), file.value());
        // Run as the unprivileged user, who owns every source but the kept ones.
        QVERIFY2(QProcess::execute("chown", {"-R", "65534:65534", work_directory() + "/src"}) == 0, "chown");
        for (int i = 0; i < 4; ++i)
            QVERIFY(::chown(QFile::encodeName(source("kept" + QString::number(i) + ".tst")).constData(), 0, 0) == 0);
    }
    QString source(QString const& name) const { return work_directory() + "/src/" + name; }
    QString log() const { return home() + "/plugin.log"; }

    run_options with(int jobs, int delay_ms) const {
        run_options options;
        options.unprivileged = true;
        options.extra_environment.insert("STYLE_TARNEL_JOBS", QString::number(jobs));
        options.extra_environment.insert("TEST_PLUGIN_LOG", log());
        options.extra_environment.insert("TEST_PLUGIN_DELAY_MS", QString::number(delay_ms));
        return options;
    }

    // The records without their times, keyed by the file's name in the tree.
    QStringList records() const {
        QSettings store(config_home() + "/Style Tarnel/Style Tarnel records.conf", QSettings::IniFormat);
        QStringList kept;
        for (QString const& key : store.allKeys()) {
            QStringList const values = store.value(key).toStringList();
            kept << QFileInfo("/" + key).fileName() + " " + values.mid(1, 2).join(" ");
        }
        kept.sort();
        return kept;
    }

    QMap<QString, QByteArray> sources() const {
        QMap<QString, QByteArray> files;
        for (auto file = tree.begin(); file != tree.end(); ++file)
            files[file.key()] = contents_of(source(file.key()));
        return files;
    }
};

struct outcome {
    QString out;
    QString err;
    int status;
    QMap<QString, QByteArray> files;
    QStringList records;
    QString logged;
};

outcome revise_tree(QString const& plugin, int jobs) {
    tree_bundle bundle(plugin);
    run_result const run = bundle.run({"-l=Test", "-s=Plain", "-p=src"}, bundle.with(jobs, 20));
    QString const sources = bundle.work_directory() + "/src";
    return {QString::fromUtf8(run.out).replace(sources, "%S"), QString::fromUtf8(run.err), run.status,
            bundle.sources(), bundle.records(), QString::fromUtf8(temporary_bundle::contents_of(bundle.log()))};
}

}  // namespace

class test_revision_on_workers : public QObject {
    Q_OBJECT
private slots:
    void gives_what_one_worker_gives_data();
    void gives_what_one_worker_gives();
    void a_stop_leaves_every_file_whole();
    void an_edit_to_a_later_file_is_not_hidden_by_its_record();
};

void test_revision_on_workers::gives_what_one_worker_gives_data() {
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<bool>("overlapping");
    QTest::newRow("plugin that may run on several threads") << built::reentrant_language_plugin() << true;
    QTest::newRow("plugin that does not say so") << built::test_language_plugin() << false;
}

void test_revision_on_workers::gives_what_one_worker_gives() {
    QFETCH(QString, plugin);
    QFETCH(bool, overlapping);
    outcome const one = revise_tree(plugin, 1);
    outcome const three = revise_tree(plugin, 3);
    QVERIFY(one.out.contains("19 files was found, 15 files was revised, 4 files was changed."));
    QCOMPARE(three.out, one.out);
    QCOMPARE(three.err, one.err);
    QCOMPARE(three.status, one.status);
    QCOMPARE(three.files, one.files);
    QCOMPARE(three.records, one.records);
    QCOMPARE(three.records.size(), 14);
    QVERIFY(!one.logged.contains("overlapping"));
    QCOMPARE(three.logged.contains("overlapping"), overlapping);
    QCOMPARE(three.logged.count("end_of_revision"), 1);
}

void test_revision_on_workers::a_stop_leaves_every_file_whole() {
    tree_bundle bundle(built::reentrant_language_plugin());
    QStringList names;
    for (int i = 0; i < 30; ++i)
        names << bundle.write_file(QString("src/many/%1.tst").arg(i, 2, 10, QChar('0')), "a  b");
    QProcess::execute("chown", {"-R", "65534:65534", bundle.work_directory() + "/src/many"});
    run_options options = bundle.with(3, 150);
    running_program run(bundle, {"-l=Test", "-s=Plain", "-p=src/many"}, 150, options);
    QVERIFY(run.wait_until_plugin_was_asked_about(4));
    run.send(SIGINT);
    run_result const result = run.finish();
    QCOMPARE(result.status, 130);
    int revised = 0;
    for (QString const& name : names) {
        QByteArray const text = temporary_bundle::contents_of(name);
        QVERIFY2(text == "a  b" || text == "a b", qPrintable(name + ": " + text));
        revised += text == "a b" ? 1 : 0;
    }
    QVERIFY(revised >= 4 && revised < names.size());
    QVERIFY(result.out.contains("Revision was interrupted by user!"));
    QVERIFY(result.out.contains(QString("%1 files was changed.").arg(revised).toUtf8()));
    QCOMPARE(temporary_files_below(bundle.work_directory()), QStringList());
}

// On two workers the first file is slow: the second is read and revised (in style, so not written)
// long before its result is taken in order. An edit made to it in between must not be hidden by
// its record: the record holds what was read, so the next run revises the edit.
void test_revision_on_workers::an_edit_to_a_later_file_is_not_hidden_by_its_record() {
    installed_bundle bundle;
    QFile::remove(bundle.plugins_directory() + "/libtest-language-plugin.so");
    bundle.add_plugin(built::reentrant_language_plugin(), "libtest-language-plugin.so");
    QString const slow = bundle.write_file("src/a.tst", "SLOW  a"), later = bundle.write_file("src/b.tst", "b b"),
                  third = bundle.write_file("src/c.tst", "SLOW c");
    run_options options;
    options.extra_environment.insert("STYLE_TARNEL_JOBS", "2");
    QStringList const words{"-l=Test", "-s=Plain", "-p=src/a.tst", "-p=src/b.tst", "-p=src/c.tst"};
    running_program run(bundle, words, 300, options);
    // The third file handed out: the second worker is done with the second file, the first is
    // still on the slow first one.
    QVERIFY(run.wait_until_plugin_was_asked_about(3));
    {
        QFile file(later);
        QVERIFY(file.open(QIODevice::Append));
        file.write("  edited");
    }
    run_result const result = run.finish();
    QCOMPARE(result.out, "It's done." + QByteArray(25, ' ') + "\n3 files was found, 3 files was revised, 1 file was changed.\n");
    QCOMPARE(bundle.run(words).out,
             "It's done." + QByteArray(25, ' ') + "\n3 files was found, 1 file was revised, 1 file was changed.\n");
    QCOMPARE(temporary_bundle::contents_of(later), QByteArray("b b edited"));
    QCOMPARE(temporary_bundle::contents_of(slow), QByteArray("SLOW a"));
    QCOMPARE(temporary_bundle::contents_of(third), QByteArray("SLOW c"));
}

QTEST_GUILESS_MAIN(test_revision_on_workers)
#include "test_revision_on_workers.moc"
