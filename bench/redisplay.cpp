// Redisplays one log of a loaded host under changed boxes, as a click on a box does.
#include <iostream>
#include <sstream>
#include <type_traits>

#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/loaded_store.h"
#include "bench/process_memory.h"
#include "viewer/filtered_redisplay.h"
#include "viewer/host_loading.h"

namespace tessarine::bench {
namespace {

// Clears the boxes of these names, with commas between them.
void clear_boxes(Console& console, const std::string& names) {
    std::istringstream words(names);
    for (std::string name; std::getline(words, name, ',');) {
        bool found = false;
        console.Form1.visit([&](std::string_view seen, auto& control) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(control)>, CheckBox>) {
                if (seen != name) return;
                control.value = 0;
                found = true;
            }
        });
        if (!found) throw UsageError("there is no box " + name);
    }
}

}  // namespace

void redisplay(std::span<char* const> words) {
    const Arguments arguments(words, {"--alerts", "--ignore", "--off", "--times"}, 3, 3);
    IdlePlatform idle;
    Console console(idle.platform());
    const std::string host = choose_host(console, arguments);
    const std::string& log = arguments.plain()[2];
    table_named(console, log);
    ViewEventLog(console, host);
    clear_boxes(console, arguments.value("--off"));
    const long loaded = present_memory();
    std::cout << "{\"seconds\": [";
    for (int i = 0; i < arguments.number("--times", 1); ++i)
        std::cout << (i == 0 ? "" : ", ")
                  << std::to_string(seconds_of([&] { ShowRecords(console, host, log); }));
    std::cout << "], \"loaded_kib\": " << loaded << ", \"kib\": " << present_memory()
              << ", \"peak_kib\": " << peak_memory() << ",\n"
              << screen_members(console) << "}\n";
}

}  // namespace tessarine::bench
