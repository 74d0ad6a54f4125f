// Writes a table of a loaded host as the page that the toolbar's button exports.
#include <iostream>

#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/loaded_store.h"
#include "bench/process_memory.h"
#include "core/code_page.h"
#include "report/html_page.h"
#include "viewer/host_loading.h"

namespace tessarine::bench {

void html(std::span<char* const> words) {
    const Arguments arguments(words, {"--alerts", "--ignore"}, 4, 4);
    const std::string& folder = arguments.plain()[3];
    IdlePlatform idle;
    idle.program.folder = from_utf8(folder);
    Console console(idle.platform());
    const std::string host = choose_host(console, arguments);
    ListControl& table = table_named(console, arguments.plain()[2]);
    ViewEventLog(console, host);
    console.Form1.lblselectedTab.caption = console.Form1.TabStrip2.selected_caption();
    const double seconds = seconds_of([&] { ExportToHtml(console, table); });
    std::cout << "{\"seconds\": " << std::to_string(seconds) << ", \"peak_kib\": " << peak_memory()
              << ", \"rows\": " << table.count() << "}\n";
}

}  // namespace tessarine::bench
