// Runs the overall analysis of all three logs, as the window's button does.
#include <array>
#include <iostream>

#include "analysis/overall_analysis.h"
#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/json_text.h"
#include "bench/loaded_store.h"
#include "bench/repetition.h"
#include "core/code_page.h"

namespace tessarine::bench {
namespace {

struct AnalysedLog {
    const char* name;
    ListControl MainForm::*table;
    Chart MainForm::*chart;
};

constexpr std::array kLogs = {
    AnalysedLog{"system", &MainForm::ListView2, &MainForm::sysPie},
    AnalysedLog{"application", &MainForm::ListView3, &MainForm::appPie},
    AnalysedLog{"security", &MainForm::ListView4, &MainForm::SecPie},
};

std::string table_rows(const ListControl& table) {
    std::string rows;
    for (int position = 1; position <= table.count(); ++position) {
        const ListControl::ConstRow row = table.row(position);
        if (!rows.empty()) rows += ",\n  ";
        (rows += '[') += json_text(to_utf8(row.text())) + ", ";
        rows += std::string(row.sub_item(1)) + ", " + json_text(to_utf8(row.sub_item(2)));
        (rows += ", ") += std::to_string(row.small_icon()) + "]";
    }
    return rows;
}

}  // namespace

void analyse(std::span<char* const> words) {
    const Arguments arguments(words, {"--again"}, 1, 1);
    IdlePlatform idle;
    Console console(idle.platform());
    choose_store(console, arguments);
    MainForm& form = console.Form1;
    for (CheckBox* box : {&form.Check4, &form.Check5, &form.Check6}) box->value = 1;
    std::cout << "{" << repeated(arguments, [&] { run_overall_analysis(console); });
    for (const AnalysedLog& log : kLogs)
        std::cout << ",\n " << json_text(log.name) << ": {\"table\": [\n  "
                  << table_rows(form.*log.table)
                  << "],\n  \"chart\": " << chart_points(form.*log.chart) << "}";
    std::cout << "}\n";
}

}  // namespace tessarine::bench
