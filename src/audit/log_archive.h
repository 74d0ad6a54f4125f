// Copies of a host's event log files before an audit replaces them.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Copies the host's three files, as far as they exist, to the archive folder of the present
/// minute. Raises the errors of the folder and of the copies.
void archive_event_logs(Console& console, const std::string& host);

}  // namespace tessarine
