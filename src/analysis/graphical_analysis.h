// The graph of Form5: how many rows of each type stand in a table of events.
#pragma once

#include <string_view>

#include "core/event_log.h"

namespace tessarine {

struct Console;

/// The host list's entry "View Graph": loads Form5 with the graph of the System table and shows it.
void graphicalview(Console& console);

/// Draws the rows of the table `OpenLog`, "systemlog", "applog" or "seclog", in just this spelling;
/// another word changes nothing. Runtime errors are ignored.
void LogAnalyze(Console& console, std::string_view OpenLog);

/// The button of a log.
void graph_log(Console& console, EventLog log);

}  // namespace tessarine
