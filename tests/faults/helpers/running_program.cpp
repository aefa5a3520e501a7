// Runs of the executable that a test acts on midway.
#include "tests/faults/helpers/running_program.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <csignal>
#include <unistd.h>

running_program::running_program(temporary_bundle const& bundle, QStringList const& arguments,
                                 int delay_ms, run_options options)
    : log(bundle.home() + "/plugin.log") {
    QFile::remove(log);
    options.extra_environment.insert("TEST_PLUGIN_LOG", log);
    options.extra_environment.insert("TEST_PLUGIN_DELAY_MS", QString::number(delay_ms));
    bundle.start(process, arguments, options);
    process.waitForStarted();
    process.closeWriteChannel();
}

running_program::~running_program() {
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
}

int running_program::files_asked_about() const {
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().count(" revise ");
}

bool running_program::wait_until_plugin_was_asked_about(int files, int timeout_ms) const {
    QElapsedTimer timer;
    timer.start();
    while (files_asked_about() < files) {
        if (timer.elapsed() > timeout_ms || process.state() == QProcess::NotRunning)
            return false;
        QThread::msleep(5);
    }
    return true;
}

void running_program::send(int signal_number) const { ::kill(static_cast<pid_t>(process.processId()), signal_number); }

run_result running_program::finish(int timeout_ms) { return result_of_finished(process, timeout_ms); }

QStringList temporary_files_below(QString const& directory) {
    QStringList found;
    QDirIterator it(directory, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QString const path = it.next();
        if (it.fileName().contains(".tarnel-"))
            found << path;
    }
    return found;
}

void give_to_unprivileged_user(QString const& path) {
    if (::chown(QFile::encodeName(path).constData(), 65534, 65534) != 0)
        return;
    QDirIterator it(path, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        if (::chown(QFile::encodeName(it.next()).constData(), 65534, 65534) != 0)
            return;
}
