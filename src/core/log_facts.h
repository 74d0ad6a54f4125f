// What belongs to each of the three logs, a row a log.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/event_log.h"
#include "core/forms/main_form.h"

namespace tessarine {

struct LogFacts {
    EventLog log;
    std::string_view name;         ///< as a host calls it
    std::string_view word;         ///< as the console's routines call it
    std::string_view file_suffix;  ///< what the name of its file has after the host
    int tab;                       ///< of TabStrip2
    ListControl MainForm::*table;
    Frame MainForm::*boxes;  ///< of the types that the table shows
    ListControl MainForm::*analysis;
    std::string_view analysis_word;  ///< for the analysis table in lblselectedTab2
    Chart MainForm::*chart;
};

inline constexpr std::array kLogFacts = {
    LogFacts{.log = EventLog::System,
             .name = "System",
             .word = "system",
             .file_suffix = "_system.log",
             .tab = 1,
             .table = &MainForm::SystemList,
             .boxes = &MainForm::SysFilter,
             .analysis = &MainForm::ListView2,
             .analysis_word = "list2",
             .chart = &MainForm::sysPie},
    LogFacts{.log = EventLog::Application,
             .name = "Application",
             .word = "application",
             .file_suffix = "_application.log",
             .tab = 2,
             .table = &MainForm::ApplicationList,
             .boxes = &MainForm::AppFilter,
             .analysis = &MainForm::ListView3,
             .analysis_word = "list3",
             .chart = &MainForm::appPie},
    LogFacts{.log = EventLog::Security,
             .name = "Security",
             .word = "security",
             .file_suffix = "_security.log",
             .tab = 3,
             .table = &MainForm::SecurityList,
             .boxes = &MainForm::SecFilter,
             .analysis = &MainForm::ListView4,
             .analysis_word = "list4",
             .chart = &MainForm::SecPie},
};

constexpr const LogFacts& facts_of(EventLog log) {
    return kLogFacts[static_cast<std::size_t>(log)];
}

inline ListControl& table_of(MainForm& form, EventLog log) {
    return form.*facts_of(log).table;
}
inline ListControl& analysis_of(MainForm& form, EventLog log) {
    return form.*facts_of(log).analysis;
}
inline Tab& tab_of(MainForm& form, EventLog log) {
    return form.TabStrip2.tab(facts_of(log).tab);
}

}  // namespace tessarine
