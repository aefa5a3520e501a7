// The window's revision follows the ignore rules of the command line's walk: the same kernel call
// leaves the same files out, and its report says how many.
#include "core/kernel.h"
#include "core/path_to.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <condition_variable>
#include <mutex>

namespace {

// The report of a revision of `paths` in the style Plain of the test language, as the window
// starts it.
std::string report_of_window_revision(QStringList const& paths) {
    struct shared {
        std::mutex mutex;
        std::condition_variable done;
        std::string report;
        bool finished = false;
        std::atomic<bool> stop{false};
    };
    auto state = std::make_shared<shared>();
    kernel().start_revise(
        revision_task{"Test", "Plain", "tst", paths}, [](int) {}, [](int) {}, [](std::string) {},
        [state](std::string report) {
            std::lock_guard<std::mutex> lock(state->mutex);
            state->report = std::move(report);
            state->finished = true;
            state->done.notify_all();
        },
        state->stop);
    std::unique_lock<std::mutex> lock(state->mutex);
    state->done.wait_for(lock, std::chrono::seconds(60), [&] { return state->finished; });
    return state->report;
}

void write(QString const& path, QByteArray const& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

}  // namespace

class test_window_ignoring : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { install_test_languages(path_to().plugins_directory(), path_to().addons_directory()); }

    // Faults: the window's walk takes what an ignore file leaves out; its report does not say
    // how many files were left out.
    void leaves_out_what_an_ignore_file_leaves_out() {
        QTemporaryDir sources;
        write(sources.filePath(".style-tarnel-ignore"), "gen/\n");
        write(sources.filePath("gen/a.tst"), "a  b\n");
        write(sources.filePath("gen/b.tst"), "a  b\n");
        write(sources.filePath("src/c.tst"), "a  b\n");
        std::string const report = report_of_window_revision({sources.path()});
        QCOMPARE(QString::fromStdString(report),
                 QString("1 file was found, 1 file was revised, 1 file was changed.\n"
                         "2 files was left out by ignore rules."));
        QCOMPARE(temporary_bundle::contents_of(sources.filePath("gen/a.tst")), QByteArray("a  b\n"));
        QCOMPARE(temporary_bundle::contents_of(sources.filePath("src/c.tst")), QByteArray("a b\n"));
    }
};

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_window_ignoring)
#include "test_window_ignoring.moc"
