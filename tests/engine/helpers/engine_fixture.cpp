#include "tests/engine/helpers/engine_fixture.h"

#include "core/kernel.h"
#include "core/path_to.h"
#include "core/product.h"
#include "core/settings_keys.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <sstream>
#include <thread>
#include <utime.h>

namespace engine_test {

namespace {

void empty_directory(QString const& path) {
    QDir directory(path);
    for (auto const& name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System))
        directory.remove(name);
}

QString log_file() { return QDir(qEnvironmentVariable("XDG_CACHE_HOME")).filePath("test-plugin.log"); }

}  // namespace

void clear_bundle() {
    QDir().mkpath(path_to().plugins_directory());
    QDir().mkpath(path_to().addons_directory());
    empty_directory(path_to().plugins_directory());
    empty_directory(path_to().addons_directory());
    QSettings records(product::organisation_name, settings_key::change_records_store);
    records.clear();
    records.sync();
    qputenv("TEST_PLUGIN_LOG", QFile::encodeName(log_file()));
    qunsetenv("TEST_PLUGIN_DELAY_MS");
    QFile::remove(log_file());
}

void install_plugin(QString const& built_plugin, QString const& as) {
    QString const name = as.isEmpty() ? QFileInfo(built_plugin).fileName() : as;
    QFile::copy(built_plugin, QDir(path_to().plugins_directory()).filePath(name));
}

QByteArray addon_text(QByteArray const& style, QByteArray const& language,
                      QByteArray const& block_form) {
    return "NAME=" + style + "\nLANGUAGE=" + language + "\n\nS_NAME=block\nS_BEG\n" + block_form +
           "\nS_END\n\nS_NAME=function\nS_BEG\ntype name() { SOME }\nS_END\n\nS_NAME=function call\nS_BEG\nname(argument);\nS_END\n";
}

QString install_addon(QString const& file_name, QByteArray const& content) {
    return write_file(QDir(path_to().addons_directory()).filePath(file_name), content);
}

void install_test_language() {
    install_plugin(QString(STYLE_TARNEL_TEST_PLUGINS_DIR "/libtest-language-plugin.so"));
    install_addon("Compact[Test].style", addon_text());
}

QString write_file(QString const& path, QByteArray const& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(content);
    return path;
}

QByteArray contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void set_modification_time(QString const& path, qint64 seconds_since_epoch) {
    struct utimbuf times {};
    times.actime = static_cast<time_t>(seconds_since_epoch);
    times.modtime = static_cast<time_t>(seconds_since_epoch);
    ::utime(QFile::encodeName(path).constData(), &times);
}

qint64 now() { return QDateTime::currentSecsSinceEpoch(); }

QStringList plugin_log() {
    QStringList lines;
    for (auto const& line : QString::fromUtf8(contents_of(log_file())).split('\n', Qt::SkipEmptyParts))
        if (line != "<unreadable>")
            lines << line.section(' ', 1);
    return lines;
}

QString records_file() {
    return QSettings(product::organisation_name, settings_key::change_records_store).fileName();
}

std::unique_ptr<QSettings> records_store() {
    return std::make_unique<QSettings>(product::organisation_name, settings_key::change_records_store);
}

revision_task task_for(QStringList const& paths, std::string const& extensions,
                       std::string const& style, std::string const& language) {
    return revision_task{language, style, extensions, paths};
}

console_output revise_on_command_line(revision_task const& task) {
    std::ostringstream out, err;
    auto* const old_out = std::cout.rdbuf(out.rdbuf());
    auto* const old_err = std::cerr.rdbuf(err.rdbuf());
    kernel().start_revise(task);
    std::cout.rdbuf(old_out);
    std::cerr.rdbuf(old_err);
    return {out.str(), err.str()};
}

window_run revise_in_window(revision_task const& task,
                            std::function<void(int, std::atomic<bool>&)> on_value, bool stopped) {
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
        if (std::this_thread::get_id() == caller)
            state->run.called_from_caller_thread = true;
    };
    kernel().start_revise(
        task, [record](int n) { record("maximum " + std::to_string(n)); },
        [record, state, on_value](int n) {
            record("value " + std::to_string(n));
            if (on_value)
                on_value(n, state->stop);
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

}  // namespace engine_test
