// Survives a crash of a plugin on one text. A third party's plugin may overflow its stack, write
// through a null pointer or abort on one source; without this the whole run dies with it: no
// report, the records of the files already revised lost, every later run dying again on the same
// file, and an editor that handed over its buffer on standard input getting nothing back.
//
// So each call into a plugin's revise() runs guarded: a SIGSEGV, SIGBUS, SIGFPE, SIGILL or SIGABRT
// raised on that thread while the call is under way jumps back out of it (on an alternate signal
// stack, which a stack overflow needs), as a debugger's crash recovery does. The caller then knows
// that the plugin crashed; since the plugin's own state may be damaged, the run calls it no more
// (revision_run), reports every file, and keeps every record it earned. The same signals anywhere
// else, or on a thread outside a guarded call, take the way they took before (the sanitizers'
// report, a core dump): the handler puts the previous action back and lets the signal come again.
//
// Under AddressSanitizer (whose allow_user_segv_handler is on by default) this handler replaces
// ASan's for these signals while the program runs; a thread that already has an alternate stack
// (ASan gives every thread one) keeps it. A sanitizer's own report ends the process as before: its
// abort() is not taken for a plugin's crash.
#ifndef STYLE_TARNEL_ENGINE_CRASH_RECOVERY_H
#define STYLE_TARNEL_ENGINE_CRASH_RECOVERY_H

#include <functional>

// Runs `call` on this thread; false when it crashed, with the number of the signal in `signal`.
// `call` must not itself run guarded calls.
bool survived(std::function<void()> const& call, int& signal);

#endif
