// Runs one measurement of the console's work without a window.
#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <string_view>

#include "bench/arguments.h"
#include "bench/commands.h"

namespace tessarine::bench {
namespace {

constexpr const char* kUsage =
    "usage: tessarine-bench load STORE HOST [--alerts FILE] [--ignore FILE] [--again N]\n"
    "       tessarine-bench redisplay STORE HOST LOG [--off BOX,...] [--times N]\n"
    "                                 [--alerts FILE] [--ignore FILE]\n"
    "       tessarine-bench sort STORE HOST LOG COLUMN\n"
    "       tessarine-bench analyse STORE [--again N]\n"
    "       tessarine-bench graph STORE HOST\n"
    "       tessarine-bench search STORE TEXT [--logs LOG,...] [--alerts FILE]\n"
    "                              [--again N]\n"
    "       tessarine-bench html STORE HOST LOG FOLDER [--alerts FILE] [--ignore FILE]\n"
    "       tessarine-bench generate STORE --host NAME [--lines N] [--language german] [--seed N]\n"
    "       tessarine-bench write N STORE\n"
    "       tessarine-bench audit STORE HOST [--settings FILE] [--kind full|M/D/YYYY]\n"
    "                             [--option append|overwrite|move] [--again N]\n"
    "       tessarine-bench browse [GROUP]\n"
    "       tessarine-bench limits read|lines|slurp FILE...\n"
    "       tessarine-bench limits fwrite FILE LINES\n";

constexpr int kFailed = 1;
constexpr int kBadArguments = 2;

struct Command {
    std::string_view name;
    void (*run)(std::span<char* const>);
};

constexpr std::array kCommands = {
    Command{"load", load},           Command{"generate", generate}, Command{"audit", audit},
    Command{"redisplay", redisplay}, Command{"sort", sort},         Command{"analyse", analyse},
    Command{"search", search},       Command{"graph", graph},       Command{"html", html},
    Command{"write", write},         Command{"limits", limits},     Command{"browse", browse},
};

void run(std::span<char* const> words) {
    if (words.empty()) throw UsageError("which command?");
    const auto* command =
        std::find_if(kCommands.begin(), kCommands.end(),
                     [&](const Command& each) { return each.name == words.front(); });
    if (command == kCommands.end())
        throw UsageError("there is no command " + std::string(words.front()));
    command->run(words.subspan(1));
}

}  // namespace
}  // namespace tessarine::bench

int main(int count, char** words) {
    namespace bench = tessarine::bench;
    try {
        bench::run(std::span(words, static_cast<std::size_t>(count)).subspan(1));
        return 0;
    } catch (const bench::UsageError& error) {
        std::cerr << "tessarine-bench: " << error.what() << "\n" << bench::kUsage;
        return bench::kBadArguments;
    } catch (const std::exception& error) {
        std::cerr << "tessarine-bench: " << error.what() << "\n";
        return bench::kFailed;
    }
}
