#include "bench/repetition.h"

#include "bench/loaded_store.h"
#include "bench/process_memory.h"

namespace tessarine::bench {

std::string repeated(const Arguments& arguments, const std::function<void()>& routine) {
    const long idle = present_memory();
    std::string members = "\"seconds\": " + std::to_string(seconds_of(routine));
    const long first = present_memory();
    members += ", \"seconds_again\": [";
    for (int i = 0; i < arguments.number("--again", 0); ++i)
        members += (i == 0 ? "" : ", ") + std::to_string(seconds_of(routine));
    members += "], \"idle_kib\": " + std::to_string(idle);
    members += ", \"first_kib\": " + std::to_string(first);
    members += ", \"last_kib\": " + std::to_string(present_memory());
    return members + ", \"peak_kib\": " + std::to_string(peak_memory());
}

}  // namespace tessarine::bench
