#include "engine/libgit2_runtime.h"

#include <git2.h>

void make_libgit2_ready() {
    // A function's static is initialised once, whichever thread comes first.
    static int const ready = git_libgit2_init();
    static_cast<void>(ready);
}
