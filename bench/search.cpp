// Searches the stored logs of all hosts for a text, as the window's button does.
#include <algorithm>
#include <array>
#include <iostream>
#include <sstream>

#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/json_text.h"
#include "bench/loaded_store.h"
#include "bench/repetition.h"
#include "core/code_page.h"
#include "search/search.h"

namespace tessarine::bench {
namespace {

struct LogBox {
    std::string_view name;
    std::string_view letter;
    CheckBox MainForm::*box;
};

constexpr std::array kLogBoxes = {
    LogBox{"system", "s", &MainForm::Check1},
    LogBox{"application", "a", &MainForm::Check2},
    LogBox{"security", "p", &MainForm::Check3},
};

// Ticks the boxes of these logs, with commas between them.
void tick_logs(MainForm& form, const std::string& logs) {
    std::istringstream words(logs);
    for (std::string word; std::getline(words, word, ',');) {
        const auto* found = std::find_if(
            kLogBoxes.begin(), kLogBoxes.end(),
            [&](const LogBox& each) { return word == each.name || word == each.letter; });
        if (found == kLogBoxes.end()) throw UsageError("there is no log " + word);
        (form.*found->box).value = 1;
    }
}

}  // namespace

void search(std::span<char* const> words) {
    const Arguments arguments(words, {"--logs", "--alerts", "--again"}, 2, 2);
    IdlePlatform idle;
    Console console(idle.platform());
    choose_store(console, arguments);
    console.Form1.TxtSearch.text = from_utf8(arguments.plain()[1]);
    tick_logs(console.Form1, arguments.value("--logs", "s,a,p"));
    std::cout << "{" << repeated(arguments, [&] { Search(console); }) << ",\n"
              << " \"panel1\": " << json_text(to_utf8(console.Form1.st1.text(1))) << ",\n"
              << screen_members(console) << "}\n";
}

}  // namespace tessarine::bench
