// Loads the stored logs of one host into the three event tables, as the window's command does.
#include <iostream>

#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/loaded_store.h"
#include "bench/process_memory.h"
#include "viewer/host_loading.h"

namespace tessarine::bench {

void load(std::span<char* const> words) {
    const Arguments arguments(words, {"--alerts", "--ignore", "--again"}, 2, 2);
    IdlePlatform idle;
    Console console(idle.platform());
    const std::string host = choose_host(console, arguments);
    const auto load_host = [&] { ViewEventLog(console, host); };
    const long idle_memory = present_memory();
    std::cout << "{\"seconds\": " << std::to_string(seconds_of(load_host))
              << ", \"seconds_again\": [";
    for (int i = 0; i < arguments.number("--again", 0); ++i)
        std::cout << (i == 0 ? "" : ", ") << std::to_string(seconds_of(load_host));
    std::cout << "], \"idle_kib\": " << idle_memory << ", \"peak_kib\": " << peak_memory() << ",\n"
              << screen_members(console) << "}\n";
}

}  // namespace tessarine::bench
