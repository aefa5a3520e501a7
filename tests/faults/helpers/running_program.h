// A run of the executable that a test acts on midway: the test plugin logs every file it is
// asked about, so the test can wait until the run is at a known file and then remove files,
// replace addons or send signals, before it collects the result.
#ifndef STYLE_TARNEL_TESTS_FAULTS_RUNNING_PROGRAM_H
#define STYLE_TARNEL_TESTS_FAULTS_RUNNING_PROGRAM_H

#include "tests/harness/temporary_bundle.h"

#include <QProcess>
#include <QString>
#include <QStringList>

class running_program {
public:
    // Starts the program at once; every revise() of the test plugin sleeps `delay_ms` first.
    running_program(temporary_bundle const& bundle, QStringList const& arguments, int delay_ms,
                    run_options options = run_options());
    ~running_program();
    running_program(running_program const&) = delete;
    running_program& operator=(running_program const&) = delete;

    // Waits until the plugin has been asked about `files` files: the last of them is then in
    // the plugin's hands for about `delay_ms`.
    bool wait_until_plugin_was_asked_about(int files, int timeout_ms = 60000) const;
    int files_asked_about() const;
    void send(int signal_number) const;
    run_result finish(int timeout_ms = 120000);

private:
    QProcess process;
    QString log;
};

// Every file below `directory` whose name marks it as a temporary file of an atomic write.
QStringList temporary_files_below(QString const& directory);

// Makes `path` and everything below it the unprivileged user's own, as a user's files are.
void give_to_unprivileged_user(QString const& path);

#endif
