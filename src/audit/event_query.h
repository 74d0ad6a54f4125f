// The question that an audit asks a host.
#pragma once

#include <string>

#include "platform/date_time.h"

namespace tessarine {

struct Console;
class Clock;

/// The WQL text for a kind: "full" asks for everything, a date (month "/" day "/" year) for that
/// day and, unless chkSpecificDate on Form4 is on, everything after it. Raises "Type mismatch" for
/// any other text.
std::string event_query(Console& console, const std::string& kind);

/// Local midnight of `date` as DMTF text (DSP0004), with the machine's offset at that moment.
std::string dmtf_of_local_midnight(Clock& clock, const Date& date);

}  // namespace tessarine
