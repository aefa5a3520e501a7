// The command-line run's stop request: while one of these lives, SIGINT and SIGTERM no longer
// kill the process but ask the run to stop after the file it is revising, so that its records are
// saved and its report says how far it got. A second signal kills at once.
#ifndef STYLE_TARNEL_ENGINE_INTERRUPTION_BY_SIGNAL_H
#define STYLE_TARNEL_ENGINE_INTERRUPTION_BY_SIGNAL_H

#include <csignal>

class interruption_by_signal {
public:
    interruption_by_signal();
    // Gives back the dispositions found at construction.
    ~interruption_by_signal();
    interruption_by_signal(interruption_by_signal const&) = delete;
    interruption_by_signal& operator=(interruption_by_signal const&) = delete;

    bool was_requested() const;
    // The shell's convention for a process ended by a signal: 128 + its number; 0 when none came.
    int exit_status() const;

private:
    struct sigaction previous_interrupt {};
    struct sigaction previous_termination {};
};

#endif
