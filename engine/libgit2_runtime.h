// libgit2 set up once for the whole process and never taken down: taken down whenever the last user
// let go, it would drop the key under which it keeps each thread's error state, and the state of
// every other thread that had met an error would never be freed. Safe to call from any thread.
#ifndef STYLE_TARNEL_ENGINE_LIBGIT2_RUNTIME_H
#define STYLE_TARNEL_ENGINE_LIBGIT2_RUNTIME_H

void make_libgit2_ready();

#endif
