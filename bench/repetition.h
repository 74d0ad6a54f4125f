// A routine that is run once and then again and again in one process.
#pragma once

#include <functional>
#include <string>

#include "bench/arguments.h"

namespace tessarine::bench {

/// Runs the routine once, and as often more as the option "--again" says. What came out, as members
/// of a JSON object: the "seconds", those of each further run ("seconds_again"), and the memory
/// before ("idle_kib"), after the first run ("first_kib"), after the last one ("last_kib") and at
/// its most ("peak_kib").
std::string repeated(const Arguments& arguments, const std::function<void()>& routine);

}  // namespace tessarine::bench
