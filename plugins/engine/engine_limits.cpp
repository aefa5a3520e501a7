// The memory figure is read at each call: what is available changes as other programs run.
#include "engine_limits.h"

#include "nesting_depth.h"

#include <sys/resource.h>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace tarnel_engine {

namespace {

// MemAvailable of /proc/meminfo, in bytes; 0 when it cannot be read.
unsigned long long available_memory() {
    std::ifstream meminfo("/proc/meminfo");
    std::string line;
    while (std::getline(meminfo, line))
        if (line.compare(0, 13, "MemAvailable:") == 0) {
            std::istringstream fields(line.substr(13));
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
    unsigned long long memory = available_memory() / 2;
    if (memory == 0)
        memory = memory_when_unknown;
    rlimit address_space{};
    if (getrlimit(RLIMIT_AS, &address_space) == 0 && address_space.rlim_cur != RLIM_INFINITY)
        memory = std::min<unsigned long long>(memory, address_space.rlim_cur / 2);
    return memory;
}

bool the_engine_takes(std::string const& code) {
    nesting_reading const nesting = nesting_of(code);
    if (nesting.deepest > deepest_nesting_taken)
        return false;
    // Most sources are far too small to matter: only a large one asks for the memory figure.
    unsigned long long const needed = static_cast<unsigned long long>(nesting.tokens) * engine_bytes_per_token;
    return needed < (64ULL << 20) || needed <= memory_for_one_source();
}

}  // namespace tarnel_engine
