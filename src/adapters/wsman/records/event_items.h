// The items of an answer as event records.
#pragma once

#include <string>

#include "adapters/wsman/records/host_clock.h"
#include "adapters/wsman/soap/item_reader.h"

namespace tessarine {

/// Appends each item to `records`, as append_event does, with the time that `clock` showed. Raises
/// a RuntimeError for an item whose time can't be read. `records` outlives the reader.
ItemReader event_items(std::string& records, HostClock clock);

}  // namespace tessarine
