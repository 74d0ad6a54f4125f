// The host that commands on a single host mean.
#pragma once

namespace tessarine {

struct Console;

/// The row of the host list that is marked, which becomes the selected item; of several the
/// selected item, and the first one where that isn't marked. 0 when none is, which panel 1 tells.
int marked_host(Console& console);

}  // namespace tessarine
