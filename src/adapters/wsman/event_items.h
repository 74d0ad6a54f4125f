// The items of an answer as event records.
#pragma once

#include <string>

#include "adapters/wsman/item_reader.h"

namespace tessarine {

/// Appends each item to `records`, as append_event does. Raises
/// a RuntimeError for an item whose time can't be read. `records` outlives the reader.
ItemReader event_items(std::string& records);

}  // namespace tessarine
