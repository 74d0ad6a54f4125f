// The menu "Help".
#pragma once

namespace tessarine {

struct Console;

/// Open the help file, show what program this is.
void open_help(Console& console);
void show_about(Console& console);

}  // namespace tessarine
