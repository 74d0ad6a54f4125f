// Sorts a table of a loaded host by a column, as a click on the column's head does.
#include <iostream>

#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/json_text.h"
#include "bench/loaded_store.h"
#include "bench/process_memory.h"
#include "core/code_page.h"
#include "viewer/host_loading.h"

namespace tessarine::bench {
namespace {

// The column's text in a row, from 0 the row's own.
std::string cell(const ListControl& table, int row, int column) {
    if (table.count() == 0) return "";
    const ListControl::ConstRow found = table.row(row);
    return to_utf8(column == 0 ? found.text() : found.sub_item(column));
}

}  // namespace

void sort(std::span<char* const> words) {
    const Arguments arguments(words, {}, 4, 4);
    IdlePlatform idle;
    Console console(idle.platform());
    const std::string host = choose_host(console, arguments);
    ListControl& table = table_named(console, arguments.plain()[2]);
    const int column = number_of(arguments.plain()[3], "columns") - 1;
    if (column < 0 || column >= static_cast<int>(table.columns.size()))
        throw UsageError("there is no such column");
    ViewEventLog(console, host);
    const double up = seconds_of([&] { table.sort_by(column, SortOrder::Ascending); });
    const std::string first = cell(table, 1, column);
    const double down = seconds_of([&] { table.sort_by(column, SortOrder::Descending); });
    std::cout << "{\"seconds\": " << std::to_string(up)
              << ", \"seconds_back\": " << std::to_string(down)
              << ", \"peak_kib\": " << peak_memory() << ",\n \"rows\": " << table.count()
              << ", \"first\": " << json_text(first)
              << ", \"last\": " << json_text(cell(table, 1, column)) << "}\n";
}

}  // namespace tessarine::bench
