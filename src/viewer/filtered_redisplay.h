// The boxes by type: one log is read again, and shown as the boxes stand now.
#pragma once

#include <string>

#include "core/event_log.h"

namespace tessarine {

struct Console;

/// A click on one of a log's boxes: ShowRecords for the host that is selected in the host list;
/// nothing when no host is.
void click_type_box(Console& console, EventLog log);

/// Refills the table of the log `SelLog`, "security", "system" or "application" in any case, from
/// the host's file; another word changes no table. Runtime errors are ignored.
void ShowRecords(Console& console, const std::string& HostName, const std::string& SelLog);

}  // namespace tessarine
