// What the mouse does on the event tables.
#pragma once

namespace tessarine {

struct Console;

/// The right button goes up over a table: its menu opens, unless there is no row that it could be
/// about. Raise no error.
void release_on_system_list(Console& console);
void release_on_application_list(Console& console);
void release_on_security_list(Console& console);

}  // namespace tessarine
