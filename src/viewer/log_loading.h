// Reading the stored file of one log into its table.
#pragma once

#include <string>

#include "tables/log_tables.h"
#include "viewer/line_loading.h"

namespace tessarine {

struct Console;

/// Where pending window events run while one log is read: before the test whether there is a file,
/// before that is opened, behind the whole log, or nowhere.
enum class PendingEvents { No, BeforeTest, BeforeOpening, BehindLog };

/// Adds the records of the host's file to the log's table; a file that can't be opened or read
/// further ends there. Returns whether a shown record matched the alert list. Runtime errors are
/// ignored all along.
bool load_log(Console& console, const LogTable& log_table, const std::string& host,
              PendingEvents pending, LoadCounts& counts);

/// The closing line of panel 3.
void show_totals(Console& console, const LoadCounts& counts);

}  // namespace tessarine
