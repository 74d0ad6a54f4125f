#include "bench/loaded_store.h"

#include <algorithm>
#include <array>
#include <map>

#include "bench/json_text.h"
#include "core/code_page.h"
#include "core/runtime_error.h"
#include "platform/files.h"
#include "store/log_files.h"
#include "store/record_reader.h"

namespace tessarine::bench {
namespace {

struct NamedTable {
    const char* name;
    ListControl MainForm::*table;
};

constexpr std::array kTables = {
    NamedTable{"system", &MainForm::SystemList},
    NamedTable{"application", &MainForm::ApplicationList},
    NamedTable{"security", &MainForm::SecurityList},
};
constexpr std::array kLogTabs = {1, 2, 3};

// One code a line; empty lines are none.
void fill_list(Files& files, const std::string& path, ListControl& list) {
    try {
        const auto file = files.open(from_utf8(path), OpenFor::Reading);
        RecordReader reader(*file);
        std::string_view line;
        while (reader.next(line))
            if (!line.empty()) list.add_row(line, 0);
    } catch (const RuntimeError& error) {
        throw UsageError(path + ": " + to_utf8(error.description()));
    }
}

// A JSON object with one member for each table.
template <class ValueOf>
std::string each_table(Console& console, ValueOf&& value_of) {
    std::string members;
    for (const NamedTable& each : kTables) {
        if (!members.empty()) members += ", ";
        members += json_text(each.name) + ": " + value_of(console.Form1.*each.table);
    }
    return "{" + members + "}";
}

std::string icons_of(ListControl& table) {
    std::map<int, int> rows;
    for (int row = 1; row <= table.count(); ++row) ++rows[table.row(row).small_icon()];
    std::string members;
    for (const auto& [icon, count] : rows) {
        if (!members.empty()) members += ", ";
        members += json_text(std::to_string(icon)) + ": " + std::to_string(count);
    }
    return "{" + members + "}";
}

std::string red_rows_of(ListControl& table) {
    int red = 0;
    for (int row = 1; row <= table.count(); ++row)
        if (table.row(row).fore_colour(0) == kRed) ++red;
    return std::to_string(red);
}

std::string tab_images(const TabStrip& strip) {
    std::string images;
    for (const int tab : kLogTabs)
        (images += images.empty() ? "" : ", ") += std::to_string(strip.tab(tab).image);
    return "[" + images + "]";
}

}  // namespace

void ensure_store(Files& files, const std::string& store) {
    for (const std::string& folder : {store, data_folder(files, store)})
        if (!files.folder_exists(folder)) files.create_folder(folder);
}

void choose_store(Console& console, const Arguments& arguments) {
    MainForm& form = console.Form1;
    const std::string store = from_utf8(arguments.plain()[0]);
    const std::string folder = data_folder(console.platform.files, store);
    if (!console.platform.files.folder_exists(folder))
        throw UsageError("there is no folder " + to_utf8(folder));
    console.Form3->txtLogPath.text = store;
    form.highlightpatt.checked = arguments.has("--alerts");
    form.hideignore.checked = arguments.has("--ignore");
    if (form.highlightpatt.checked)
        fill_list(console.platform.files, arguments.value("--alerts"), form.AlertList);
    if (form.hideignore.checked)
        fill_list(console.platform.files, arguments.value("--ignore"), form.IgnoreList);
}

std::string choose_host(Console& console, const Arguments& arguments) {
    choose_store(console, arguments);
    const std::string host = from_utf8(arguments.plain()[1]);
    console.Form1.ListView1.add_row(host, 0).set_selected(true);
    return host;
}

ListControl& table_named(Console& console, const std::string& log) {
    const auto found = std::find_if(kTables.begin(), kTables.end(),
                                    [&](const NamedTable& each) { return log == each.name; });
    if (found == kTables.end()) throw UsageError("there is no log " + log);
    return console.Form1.*found->table;
}

std::string screen_members(Console& console) {
    std::string members = " \"rows\": ";
    members += each_table(console, [](auto& table) { return std::to_string(table.count()); });
    members += ",\n \"panel3\": " + json_text(to_utf8(console.Form1.st1.text(3)));
    members += ",\n \"tabs\": " + tab_images(console.Form1.TabStrip2);
    members += ",\n \"icons\": " + each_table(console, icons_of);
    members += ",\n \"red\": " + each_table(console, red_rows_of);
    return members;
}

std::string chart_points(const Chart& chart) {
    std::string points;
    for (const std::int64_t point : chart.points) {
        if (!points.empty()) points += ", ";
        points += std::to_string(point);
    }
    return "[" + points + "]";
}

}  // namespace tessarine::bench
