// Writes records into the security log of a store, as an audit writes those of a host.
#include <filesystem>
#include <iostream>

#include "audit/event_files.h"
#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/loaded_store.h"
#include "bench/made_up_events.h"
#include "bench/process_memory.h"
#include "core/code_page.h"

namespace tessarine::bench {
namespace {

constexpr const char* kHost = "HOST01";

void write_events(Console& console, const std::vector<EventProperties>& events, int count) {
    EventFiles files(console.regional, {});
    files.open(console, kHost);
    for (int i = 0; i < count; ++i)
        files.write(events[static_cast<std::size_t>(i) % events.size()]);
    files.close();
}

}  // namespace

void write(std::span<char* const> words) {
    const Arguments arguments(words, {}, 2, 2);
    const int lines = number_of(arguments.plain()[0], "write");
    const std::string store = from_utf8(arguments.plain()[1]);
    IdlePlatform idle;
    Console console(idle.platform());
    console.Form3->txtLogPath.text = store;
    ensure_store(idle.files, store);
    const MadeUpEvents events(kHost);
    const long idle_memory = present_memory();
    const double seconds = seconds_of([&] { write_events(console, events.all(), lines); });
    const std::string path = host_log_path(idle.files, store, kHost, EventLog::Security);
    std::cout << "{\"seconds\": " << std::to_string(seconds) << ", \"lines\": " << lines
              << ", \"bytes\": " << std::filesystem::file_size(to_utf8(path))
              << ", \"idle_kib\": " << idle_memory << ", \"peak_kib\": " << peak_memory() << "}\n";
}

}  // namespace tessarine::bench
