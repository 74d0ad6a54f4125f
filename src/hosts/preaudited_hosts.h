// Hosts that the event store holds logs of.
#pragma once

namespace tessarine {

struct Console;

/// Fills the host list with the hosts of which the store has a log that isn't empty. Raises an
/// error when the folder of the store can't be listed; the list is empty then.
void LoadPreAuditedHosts(Console& console);

}  // namespace tessarine
