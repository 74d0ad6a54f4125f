// The menu entries that say how events are shown.
#pragma once

namespace tessarine {

struct Console;

/// Each flips its check mark and stores it. The tables follow at the next load, the grid lines at
/// once.
void highlightpatt(Console& console);
void hideignore(Console& console);
void shogrid(Console& console);

}  // namespace tessarine
