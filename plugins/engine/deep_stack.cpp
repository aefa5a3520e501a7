// A POSIX thread, for its stack size: std::thread cannot be given one.
#include "deep_stack.h"

#include <pthread.h>

namespace tarnel_engine {

namespace {

void* run(void* work) {
    (*static_cast<std::function<void()> const*>(work))();
    return nullptr;
}

}  // namespace

void run_on_a_deep_stack(std::function<void()> const& work) {
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0) {
        work();
        return;
    }
    pthread_t thread;
    bool const started = pthread_attr_setstacksize(&attributes, engine_stack_size) == 0 &&
                         pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)) == 0;
    pthread_attr_destroy(&attributes);
    if (started)
        pthread_join(thread, nullptr);
    else
        work();
}

}  // namespace tarnel_engine
