// Points in time as the hosts keep them, and their text forms on the wire.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine::sample {

using Instant = std::chrono::sys_time<std::chrono::microseconds>;

/// A DMTF date-time: an instant, and the offset of the clock that told it.
struct DmtfTime {
    Instant instant;
    std::chrono::minutes offset;
};

/// Reads yyyymmddHHMMSS.ffffff+OOO (DSP0004, "Datetime type"); nothing for any other text.
std::optional<DmtfTime> parse_dmtf(std::string_view text);

/// Appends the XML form of WS-CIM in UTC: 2026-11-22T16:28:47.73517Z, without the fraction's
/// trailing zeros.
void append_cim_datetime(std::string& target, Instant instant);

/// The day YYYY-MM-DD; nothing for any other text.
std::optional<std::chrono::sys_days> parse_day(std::string_view text);

}  // namespace tessarine::sample
