#include "bench/process_memory.h"

#include <fstream>
#include <string>

namespace tessarine::bench {
namespace {

// A line of /proc/self/status (proc(5)); 0 when it isn't there.
long status_kib(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    long kib = 0;
    while (status >> word)
        if (word == name + ":") status >> kib;
    return kib;
}

}  // namespace

long present_memory() {
    return status_kib("VmRSS");
}

long peak_memory() {
    return status_kib("VmHWM");
}

}  // namespace tessarine::bench
