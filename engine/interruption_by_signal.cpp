// SIGINT and SIGTERM turned into a flag read between files.
#include "engine/interruption_by_signal.h"

namespace {

volatile std::sig_atomic_t received = 0;

// Only async-signal-safe work: remember the signal, and let the next one kill as it would have,
// also when both came so close together that this handler runs for each.
extern "C" void remember(int number) {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    if (received != 0) {
        std::raise(number);
        return;
    }
    received = number;
}

}  // namespace

interruption_by_signal::interruption_by_signal() {
    received = 0;
    struct sigaction action {};
    action.sa_handler = remember;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, &previous_interrupt);
    sigaction(SIGTERM, &action, &previous_termination);
}

interruption_by_signal::~interruption_by_signal() {
    sigaction(SIGINT, &previous_interrupt, nullptr);
    sigaction(SIGTERM, &previous_termination, nullptr);
}

bool interruption_by_signal::was_requested() const { return received != 0; }

int interruption_by_signal::exit_status() const { return received == 0 ? 0 : 128 + received; }
