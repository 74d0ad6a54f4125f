// What the mouse does on the event tables and on the analysis tables.
#pragma once

#include "core/event_log.h"

namespace tessarine {

struct Console;
struct InputDetails;

/// A mouse button goes up over an event table: the right one opens its menu, unless there is no row
/// that it could be about.
void release_on_events(Console& console, EventLog log, const InputDetails& details);

/// A click on a column's head: sorts by that column, the other way round with every second click.
void click_column(Console& console, EventLog log, const InputDetails& details);

/// A mouse button goes up over an analysis table that has rows: lblEventDetail tells the selected
/// one, and the right button opens the menu. Raises a RuntimeError for a row without a source.
void release_on_analysis(Console& console, EventLog log, const InputDetails& details);

}  // namespace tessarine
