// The windowed revision run through the kernel: the callbacks in their order, all from the
// worker thread, the report it finishes with, and interruption through the stop flag.
#include "core/kernel.h"
#include "core/path_to.h"
#include "tests/harness/temporary_bundle.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace {

struct window_run {
    std::vector<std::string> events;
    std::string report;
    bool finished = false;
    bool called_from_caller_thread = false;
};

// Runs a revision of `paths` in the style Plain of the test language as the window does, and
// records every callback; `stop_at` sets the stop flag when the progress reaches that value, and
// `stopped` before the run starts.
window_run revise_in_window(QStringList const& paths, std::string const& language = "Test", int stop_at = 0,
                            bool stopped = false) {
    struct shared {
        std::mutex mutex;
        std::condition_variable done;
        window_run run;
        std::atomic<bool> stop{false};
    };
    // Kept alive by the callbacks too, so that a run that outlives a failed wait stays sound.
    auto state = std::make_shared<shared>();
    state->stop = stopped;
    auto const caller = std::this_thread::get_id();
    auto record = [state, caller](std::string event) {
        std::lock_guard<std::mutex> lock(state->mutex);
        state->run.events.push_back(std::move(event));
        state->run.called_from_caller_thread |= std::this_thread::get_id() == caller;
    };
    kernel().start_revise(
        revision_task{language, "Plain", "tst", paths}, [record](int n) { record("maximum " + std::to_string(n)); },
        [record, state, stop_at](int n) {
            record("value " + std::to_string(n));
            state->stop = state->stop || n == stop_at;
        },
        [record](std::string text) { record("status " + text); },
        [record, state](std::string report) {
            record("finished");
            std::lock_guard<std::mutex> lock(state->mutex);
            state->run.report = std::move(report);
            state->run.finished = true;
            state->done.notify_all();
        },
        state->stop);
    std::unique_lock<std::mutex> lock(state->mutex);
    state->done.wait_for(lock, std::chrono::seconds(60), [&] { return state->run.finished; });
    return state->run;
}

}  // namespace

class test_window_revision : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { install_test_languages(path_to().plugins_directory(), path_to().addons_directory()); }
    void reports_through_the_callbacks_from_its_own_thread();
    void ends_a_failed_preparation_with_its_message_only();
    void stops_after_the_file_it_was_interrupted_at();
    void reads_the_stop_request_before_unchanged_files_too();
    void keys_a_relative_path_as_the_file_it_names();

private:
    QTemporaryDir sources;
    QString source(QString const& name, QByteArray const& content) const {
        QFile file(sources.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) >= 0 ? sources.filePath(name) : QString();
    }
};

void test_window_revision::reports_through_the_callbacks_from_its_own_thread() {
    QStringList const paths{source("a.tst", "x  y"), source("b.tst", "z"), source("c.tst", "z")};
    revise_in_window({paths[2]});  // c is then unchanged: no progress step
    window_run const run = revise_in_window(paths);
    QVERIFY(run.finished);
    QCOMPARE(run.events, (std::vector<std::string>{"status Preparing, please wait...", "maximum 3",
                                                   "status 1 from 3 files", "value 1", "status 2 from 3 files",
                                                   "value 2", "finished"}));
    QCOMPARE(run.report, std::string("3 files was found, 2 files was revised, 1 file was changed."));
    QVERIFY(!run.called_from_caller_thread);
    QCOMPARE(temporary_bundle::contents_of(paths[0]), QByteArray("x y"));
}

void test_window_revision::ends_a_failed_preparation_with_its_message_only() {
    QString const file = source("d.tst", "x  y");
    window_run const run = revise_in_window({file}, "Missing");
    QCOMPARE(run.events, (std::vector<std::string>{"status Preparing, please wait...", "finished"}));
    QCOMPARE(run.report, std::string("Sorry, I can't revise, something wrong with plugin 'Missing'.\n\n"));
    QCOMPARE(temporary_bundle::contents_of(file), QByteArray("x  y"));
}

void test_window_revision::stops_after_the_file_it_was_interrupted_at() {
    QStringList const paths{source("e.tst", "x  y"), source("f.tst", "x  y"), source("g.tst", "x  y")};
    window_run const run = revise_in_window(paths, "Test", 1);
    QCOMPARE(run.report, std::string("\nRevision was interrupted by user!\n\n"
                                     "3 files was found, 1 file was revised, 1 file was changed."));
    QCOMPARE(run.events, (std::vector<std::string>{"status Preparing, please wait...", "maximum 3",
                                                   "status 1 from 3 files", "value 1", "finished"}));
    QCOMPARE(temporary_bundle::contents_of(paths[0]), QByteArray("x y"));
    QCOMPARE(temporary_bundle::contents_of(paths[1]), QByteArray("x  y"));
}

// Files skipped as unchanged reach no progress step; Stop must still end the run before them.
void test_window_revision::reads_the_stop_request_before_unchanged_files_too() {
    QStringList const paths{source("h.tst", "x y"), source("i.tst", "x y"), source("j.tst", "x  y")};
    revise_in_window({paths[0], paths[1]});
    window_run const run = revise_in_window(paths, "Test", 0, true);
    QCOMPARE(run.report, std::string("\nRevision was interrupted by user!\n\n"
                                     "3 files was found, no files was revised."));
    QCOMPARE(temporary_bundle::contents_of(paths[2]), QByteArray("x  y"));
}

// The window hands over raw paths: a file named relatively has the record of the file it names.
void test_window_revision::keys_a_relative_path_as_the_file_it_names() {
    QString const file = source("k.tst", "x y");
    QString const before = QDir::currentPath();
    QDir::setCurrent(sources.path());
    revise_in_window({"./k.tst"});
    QDir::setCurrent(before);
    QCOMPARE(revise_in_window({file}).report, std::string("1 file was found, no files was revised."));
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_window_revision)
#include "test_window_revision.moc"
