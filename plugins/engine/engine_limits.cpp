// The memory figure is read at each call: what is available changes as other programs run.
#include "engine_limits.h"

#include "nesting_depth.h"

#include <sys/resource.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace tarnel_engine {

namespace {

// A figure of a /proc file, in bytes (the file gives kB); 0 when it cannot be read.
unsigned long long kilobytes_in(char const* file, std::string const& field) {
    std::ifstream lines(file);
    std::string line;
    while (std::getline(lines, line))
        if (line.compare(0, field.size(), field) == 0) {
            std::istringstream fields(line.substr(field.size()));
            unsigned long long kilobytes = 0;
            if (fields >> kilobytes)
                return kilobytes * 1024;
        }
    return 0;
}

// A machine whose memory cannot be read is taken to have this much for one source: enough for
// about a million tokens, a source of some 5 MB.
unsigned long long const memory_when_unknown = 1ULL << 30;

}  // namespace

unsigned long long memory_for_one_source() {
    unsigned long long memory = kilobytes_in("/proc/meminfo", "MemAvailable:") / 2;
    if (memory == 0)
        memory = memory_when_unknown;
    rlimit address_space{};
    if (getrlimit(RLIMIT_AS, &address_space) == 0 && address_space.rlim_cur != RLIM_INFINITY) {
        unsigned long long const held = kilobytes_in("/proc/self/status", "VmSize:");
        unsigned long long const left = address_space.rlim_cur > held ? address_space.rlim_cur - held : 0;
        memory = std::min(memory, left);
    }
    return memory;
}

bool the_engine_takes(std::string const& code, lexed_as language) {
    nesting_reading const nesting = nesting_of(code, language);
    if (nesting.deepest > deepest_nesting_taken)
        return false;
    // Most sources are far too small to matter: only a large one asks for the memory figure.
    unsigned long long const needed = static_cast<unsigned long long>(nesting.tokens) * engine_bytes_per_token;
    return needed < (64ULL << 20) || needed <= memory_for_one_source();
}

}  // namespace tarnel_engine
