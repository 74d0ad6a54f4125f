// The two written forms of a CIM date-time: XML's on the wire and DMTF's in the console.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

using UtcTime = std::chrono::sys_time<std::chrono::microseconds>;

/// An xs:dateTime such as 2013-04-15T16:28:47.73517Z, with up to nine digits of fraction (those
/// past the sixth are cut off) and "Z", an offset +hh:mm or -hh:mm, or nothing, which means UTC
/// too. Nothing for any other text, nor for a time so far off that a clock somewhere could not show
/// it in a year from 100 to 9999, as the console must.
std::optional<UtcTime> parse_cim_datetime(std::string_view text);

/// The DMTF text (DSP0004, "Datetime type") of an instant as a clock shows it that is `offset`
/// ahead of UTC, by 999 minutes at most: yyyymmddHHMMSS.ffffff+OOO.
std::string dmtf_text(UtcTime instant, std::chrono::minutes offset);

}  // namespace tessarine
