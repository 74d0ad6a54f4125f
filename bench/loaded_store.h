// What the commands on stored logs have in common.
#pragma once

#include <chrono>
#include <string>

#include "bench/arguments.h"
#include "core/console_state.h"

namespace tessarine::bench {

/// Makes the folders of a store that are missing.
void ensure_store(Files& files, const std::string& store);

/// Sets the console up for the store that is the first plain word, and for the lists of one code a
/// line that the options "--alerts" and "--ignore" name: a load highlights or hides by them. Raises
/// a UsageError when there is no such store or list.
void choose_store(Console& console, const Arguments& arguments);

/// The same, and for the host that is the second plain word, which it returns.
std::string choose_host(Console& console, const Arguments& arguments);

/// The table of "system", "application" or "security"; any other word is a UsageError.
ListControl& table_named(Console& console, const std::string& log);

/// What a load leaves on the screen, as members of a JSON object.
std::string screen_members(Console& console);

/// The numbers of a chart as a JSON array.
std::string chart_points(const Chart& chart);

/// Seconds that `work` takes.
template <class Work>
double seconds_of(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace tessarine::bench
