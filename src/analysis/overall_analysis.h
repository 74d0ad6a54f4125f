// The overall analysis: what the stored logs of all hosts hold, by event code and by type.
#pragma once

#include <string_view>

namespace tessarine {

struct Console;

/// The button of the analysis: runs it for each log whose box is ticked, and shows the summary.
void run_overall_analysis(Console& console);

/// Fills the table and the chart of the log `LogFile`, "system", "application" or "security" in any
/// case, from the files of all hosts; another word finds no files. A file that can't be opened or
/// read further ends there. Runtime errors are ignored.
void OverAllAnalysis(Console& console, std::string_view LogFile);

}  // namespace tessarine
