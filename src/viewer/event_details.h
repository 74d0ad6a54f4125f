// The window of one event, and the walk through its table from there.
#pragma once

#include "core/event_log.h"

namespace tessarine {

struct Console;

/// A double click on an event table: shows the selected row in Form2, which stays in front until it
/// is closed; nothing when no row is selected. A row with too few fields raises a RuntimeError; on
/// the application table runtime errors are ignored.
void open_event(Console& console, EventLog log);

/// The form comes up. Raises "Overflow" for a row after the 32,767th.
void activate_event_details(Console& console);

/// Go to the row above or below, which is selected in the table. Raise a RuntimeError for a row
/// with too few fields, and for a position after the 32,767th.
void CmdUp(Console& console);
void CmdDown(Console& console);

/// The event as text.
void copy_event_to_clipboard(Console& console);

void look_up_shown_event(Console& console);
void close_event_details(Console& console);

}  // namespace tessarine
