// Loading the stored file of one log into its table.
#pragma once

#include <string_view>

#include "viewer/line_loading.h"

namespace tessarine {

/// Where pending window events run while one log is read: before the test whether there is a file,
/// before that is opened, after the whole log, or nowhere.
enum class PendingEvents { No, BeforeTest, BeforeOpening, AfterLog };

/// Adds the records of the host's file to the log's table; a file that can't be opened or read
/// further ends there.
void load_log(Load& load, const LoadedLog& log, PendingEvents pending);

/// The closing line of panel 3.
void show_totals(const Load& load);

}  // namespace tessarine
