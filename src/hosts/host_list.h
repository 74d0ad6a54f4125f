// The host list: what the administrator does to its rows.
#pragma once

#include <string_view>

#include "core/control_events.h"
#include "core/list/list_control.h"

namespace tessarine {

struct Console;

/// Adds a host at the end of the list: icon 1, and "-" for a result that isn't there yet.
void add_host_row(ListControl& list, std::string_view name);

/// Shows the number of rows in panel 4.
void show_host_count(Console& console);

/// A mouse button goes down on the list. This and the two below raise
/// "Overflow" for a list of more than 32,767 hosts.
void press_on_host_list(Console& console, const InputDetails& details);

/// Takes the selected rows out of the list; nothing on disk is touched.
void removehost(Console& console);

/// Asks, and then deletes the event log files of the selected hosts. A file that can't be deleted
/// raises its error, with the hourglass left on.
void dellogs(Console& console);

/// txtSelectedHost, which is for display alone, hands the focus on.
void enter_selected_host(Console& console);
void press_on_selected_host(Console& console, const InputDetails& details);

}  // namespace tessarine
