// The graph of Form5: how many rows of each type stand in a table of events.
#pragma once

#include <string_view>

namespace tessarine {

struct Console;

/// The host list's entry "View Graph": loads Form5 with the graph of the System table and shows it.
/// Raises no error.
void graphicalview(Console& console);

/// Draws the rows of the table `OpenLog`, "systemlog", "applog" or "seclog", in just this spelling;
/// another word changes nothing. Runtime errors are ignored all along.
void LogAnalyze(Console& console, std::string_view OpenLog);

/// The buttons of the three logs.
void graph_system_log(Console& console);
void graph_application_log(Console& console);
void graph_security_log(Console& console);

}  // namespace tessarine
