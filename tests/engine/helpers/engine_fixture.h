// What the engine's tests share: a bundle with the test plugins and addons of a test's choosing,
// sources in a temporary directory, the records store, the plugin's log, and runs of both
// drivers through the kernel with their output captured.
#ifndef STYLE_TARNEL_TESTS_ENGINE_FIXTURE_H
#define STYLE_TARNEL_TESTS_ENGINE_FIXTURE_H

#include "core/revision_task.h"

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace engine_test {

// Empties the bundle's plugins and styles, forgets every change record and the plugin's log.
void clear_bundle();
void install_plugin(QString const& built_plugin, QString const& as = QString());
QByteArray addon_text(QByteArray const& style = "Compact", QByteArray const& language = "Test",
                      QByteArray const& block_form = "begin SOME end");
// Writes an addon into the bundle; returns its path.
QString install_addon(QString const& file_name, QByteArray const& content);
// The bundle's usual set-up: the "Test" plugin and its valid "Compact" addon.
void install_test_language();

QString write_file(QString const& path, QByteArray const& content);
QByteArray contents_of(QString const& path);
void set_modification_time(QString const& path, qint64 seconds_since_epoch);
qint64 now();

// The lines the test plugin logged since the last clear_bundle ("revise <EOL> <space> <size>",
// "end_of_revision"), without the plugin's tag.
QStringList plugin_log();
QString records_file();
// The change records' store, opened for one statement.
std::unique_ptr<QSettings> records_store();

revision_task task_for(QStringList const& paths, std::string const& extensions = "tst",
                       std::string const& style = "Compact", std::string const& language = "Test");

struct console_output {
    std::string out;
    std::string err;
};
console_output revise_on_command_line(revision_task const& task);

struct window_run {
    // "maximum N", "value N", "status TEXT", "finished", in the order they came.
    std::vector<std::string> events;
    std::string report;
    bool called_from_caller_thread = false;
    bool finished = false;
};
// Starts a windowed run and waits for `finished`. `on_value` is called on the worker thread at
// every value callback, with the value and the stop flag; `stopped` is the flag's first value.
window_run revise_in_window(revision_task const& task,
                            std::function<void(int, std::atomic<bool>&)> on_value = {},
                            bool stopped = false);

}  // namespace engine_test

#endif
