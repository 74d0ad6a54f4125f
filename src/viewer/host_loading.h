// The full load: the three event tables filled from one host's stored files.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Loads the logs of the selected host and names it in txtSelectedHost; does nothing while no row
/// is selected.
void vieweventlogs(Console& console);

/// Throws away what the three tables hold and refills them from the host's files, in the order
/// security, system, application. With several hosts selected the tables stay empty. Runtime errors
/// are ignored.
void ViewEventLog(Console& console, const std::string& HostName);

}  // namespace tessarine
