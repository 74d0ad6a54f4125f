// The one door from the window into the console's routines.
#pragma once

#include <functional>

namespace tessarine {

struct Console;

/// Runs one event's routine. A RuntimeError that reaches this point is the console's default
/// failure: a message, and the end of the program in order. Any other exception is a mistake of
/// ours or a lack of memory, and is reported as such. Nothing is ever thrown.
void run_event(Console& console, const std::function<void(Console&)>& routine) noexcept;

/// Ends the program in order: at once, or after the running event, which panel 5 tells. A walk over
/// hosts looks at `Console::end_wanted` before it goes on to the next one.
void end_after_event(Console& console);

}  // namespace tessarine
