// Loads the stored logs of one host into the three event tables, as the window's command does.
#include <iostream>

#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/loaded_store.h"
#include "bench/repetition.h"
#include "viewer/host_loading.h"

namespace tessarine::bench {

void load(std::span<char* const> words) {
    const Arguments arguments(words, {"--alerts", "--ignore", "--again"}, 2, 2);
    IdlePlatform idle;
    Console console(idle.platform());
    const std::string host = choose_host(console, arguments);
    std::cout << "{" << repeated(arguments, [&] { ViewEventLog(console, host); }) << ",\n"
              << screen_members(console) << "}\n";
}

}  // namespace tessarine::bench
