#include "engine/crash_recovery.h"

#include <csetjmp>
#include <csignal>
#include <cstdlib>
#include <mutex>
#include <signal.h>

#if defined(__SANITIZE_ADDRESS__)
#define STYLE_TARNEL_UNDER_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(undefined_behavior_sanitizer)
#define STYLE_TARNEL_UNDER_SANITIZER 1
#endif
#endif
#ifdef STYLE_TARNEL_UNDER_SANITIZER
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

// Set when a sanitizer has found an error and ends the process (with abort_on_error, by abort()):
// that abort is the sanitizer's verdict on the program, which a recovery must not swallow.
volatile std::sig_atomic_t sanitizer_is_dying = 0;

int const guarded_signals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr int signal_count = sizeof guarded_signals / sizeof guarded_signals[0];
struct sigaction previous_actions[signal_count];

// Where a crash on this thread jumps to; null outside a guarded call.
thread_local sigjmp_buf* landing = nullptr;

extern "C" void on_crash(int number, siginfo_t*, void*) {
    sigjmp_buf* const target = landing;
    if (target != nullptr && !sanitizer_is_dying) {
        landing = nullptr;
        siglongjmp(*target, number);
    }
    // Not ours: the previous action takes it. A fault comes again at once when the instruction is
    // retried; an abort() raises SIGABRT again itself.
    for (int i = 0; i < signal_count; ++i)
        if (guarded_signals[i] == number)
            sigaction(number, &previous_actions[i], nullptr);
}

void install_handlers_once() {
    static std::once_flag installed;
    std::call_once(installed, [] {
#ifdef STYLE_TARNEL_UNDER_SANITIZER
        __sanitizer_set_death_callback([] { sanitizer_is_dying = 1; });
#endif
        struct sigaction action {};
        action.sa_sigaction = on_crash;
        sigemptyset(&action.sa_mask);
        action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_NODEFER;
        for (int i = 0; i < signal_count; ++i)
            sigaction(guarded_signals[i], &action, &previous_actions[i]);
    });
}

// An alternate signal stack for this thread, unless it has one already; given back when the
// thread ends.
class alternate_stack {
public:
    alternate_stack() {
        stack_t current {};
        if (sigaltstack(nullptr, &current) == 0 && !(current.ss_flags & SS_DISABLE) && current.ss_size >= size)
            return;
        memory = static_cast<char*>(std::malloc(size));
        if (memory == nullptr)
            return;
        stack_t ours {};
        ours.ss_sp = memory;
        ours.ss_size = size;
        if (sigaltstack(&ours, nullptr) != 0) {
            std::free(memory);
            memory = nullptr;
        }
    }
    ~alternate_stack() {
        if (memory == nullptr)
            return;
        stack_t off {};
        off.ss_flags = SS_DISABLE;
        sigaltstack(&off, nullptr);
        std::free(memory);
    }
    alternate_stack(alternate_stack const&) = delete;
    alternate_stack& operator=(alternate_stack const&) = delete;

private:
    static constexpr std::size_t size = 64 * 1024;
    char* memory = nullptr;
};

}  // namespace

bool survived(std::function<void()> const& call, int& signal) {
    install_handlers_once();
    thread_local alternate_stack const stack;
    sigjmp_buf here;
    // Saves the signal mask, so the jump unblocks the signal that brought it.
    int const number = sigsetjmp(here, 1);
    if (number != 0) {
        signal = number;
        return false;
    }
    // Also when `call` throws, no jump may land in a frame that is gone.
    struct landing_while_alive {
        explicit landing_while_alive(sigjmp_buf* at) { landing = at; }
        ~landing_while_alive() { landing = nullptr; }
    } const armed(&here);
    call();
    signal = 0;
    return true;
}
