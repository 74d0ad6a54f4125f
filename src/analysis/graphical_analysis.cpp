#include "analysis/graphical_analysis.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/log_facts.h"
#include "platform/form_windows.h"

namespace tessarine {
namespace {

// The types in the order of the chart's columns.
constexpr std::array kEventTypes = {kErrorLegend, kInformationLegend, kWarningLegend};
constexpr std::array kAuditTypes = {kFailureLegend, kSuccessLegend};

struct GraphedLog {
    EventLog log;
    std::string_view word;
    std::span<const LegendEntry> types;
};

constexpr std::array kLogs = {
    GraphedLog{EventLog::System, "systemlog", kEventTypes},
    GraphedLog{EventLog::Application, "applog", kEventTypes},
    GraphedLog{EventLog::Security, "seclog", kAuditTypes},
};

// The counter is asked first, since each further row would raise an error that is passed over.
//
// KEEP(graph-counts-stop-at-32767): a wider number would count those rows too.
std::int64_t count_rows(const ListControl& table, int icon) {
    Counter16 count;
    for (int row = 1; row <= table.count() && !count.full(); ++row)
        if (table.row(row).small_icon() == icon) count.add_one();
    return count.value();
}

}  // namespace

void graphicalview(Console& console) {
    LogAnalyze(console, "systemlog");
    console.Form5->caption =
        std::string("Grahpical Analysis - ") + console.Form1.txtSelectedHost.text;  // sic
    console.platform.form_windows.show_modal(console.Form5.kId);
}

void LogAnalyze(Console& console, std::string_view OpenLog) {
    console.platform.form_windows.let_events_pass();
    const auto* log = std::find_if(kLogs.begin(), kLogs.end(),
                                   [&](const GraphedLog& each) { return OpenLog == each.word; });
    if (log == kLogs.end()) return;
    Chart& chart = console.Form5->pie;
    chart.series.clear();
    chart.points.clear();
    for (const LegendEntry& type : log->types) {
        chart.series.push_back({std::string(type.label), type.colour});
        chart.points.push_back(count_rows(table_of(console.Form1, log->log), type.icon));
    }
}

void graph_log(Console& console, EventLog log) {
    LogAnalyze(console, kLogs[static_cast<std::size_t>(log)].word);
}

}  // namespace tessarine
