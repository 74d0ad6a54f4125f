// Which event of which control runs which routine.
#pragma once

#include <span>

#include "core/control_events.h"

namespace tessarine {

/// The console's whole table. A control whose click has no entry is shown disabled.
std::span<const ControlEvent> control_events();

}  // namespace tessarine
