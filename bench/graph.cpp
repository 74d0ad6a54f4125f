// Loads a host and draws the graph of each of its logs, as the window's "View Graph" does.
#include <array>
#include <iostream>

#include "analysis/graphical_analysis.h"
#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/json_text.h"
#include "bench/loaded_store.h"
#include "bench/process_memory.h"
#include "viewer/host_loading.h"

namespace tessarine::bench {
namespace {

struct GraphedLog {
    const char* name;
    const char* word;
};

constexpr std::array kLogs = {
    GraphedLog{"system", "systemlog"},
    GraphedLog{"application", "applog"},
    GraphedLog{"security", "seclog"},
};

}  // namespace

void graph(std::span<char* const> words) {
    const Arguments arguments(words, {}, 2, 2);
    IdlePlatform idle;
    Console console(idle.platform());
    ViewEventLog(console, choose_host(console, arguments));
    double seconds = 0;
    std::string charts;
    for (const auto& [name, word] : kLogs) {
        seconds += seconds_of([&] { LogAnalyze(console, word); });
        charts += ",\n " + json_text(name) + ": " + chart_points(console.Form5->pie);
    }
    std::cout << "{\"seconds\": " << std::to_string(seconds) << ", \"peak_kib\": " << peak_memory()
              << charts << "}\n";
}

}  // namespace tessarine::bench
