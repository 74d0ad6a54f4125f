// The XML form of what a query returns (MS-WSMV, "WMI objects"; DSP0230).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "sample_network/hosts/sample_event.h"
#include "sample_network/hosts/time_zone.h"

namespace tessarine::sample {

/// Appends `text` for use between two tags. A CR becomes a reference, as a parser would change it.
void append_escaped(std::string& target, std::string_view text);

/// The length of UTF-8 text in UTF-16 units, in which an envelope's size is counted.
std::size_t utf16_length(std::string_view text);

/// One Win32_NTLogEvent.
std::string event_item(const SampleEvent& event);

/// One Win32_TimeZone.
std::string time_zone_item(const TimeZone& zone);

}  // namespace tessarine::sample
