// Event records as bytes of the temporary file: a length, then each property with its own length.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/event_source.h"

namespace tessarine {

/// A property of the record and its name in the class Win32_NTLogEvent.
struct EventField {
    std::string_view name;
    EventProperties::Property EventProperties::*property;
};

inline constexpr std::array<EventField, 8> kEventFields = {{
    {"LogFile", &EventProperties::LogFile},
    {"Type", &EventProperties::Type},
    {"TimeGenerated", &EventProperties::TimeGenerated},
    {"SourceName", &EventProperties::SourceName},
    {"EventCode", &EventProperties::EventCode},
    {"ComputerName", &EventProperties::ComputerName},
    {"Message", &EventProperties::Message},
    {"User", &EventProperties::User},
}};

void append_event(std::string& bytes, const EventProperties& event);

/// Takes the first record off the front of `bytes` into views on them; false, and nothing taken,
/// when there is no whole one.
bool take_event(std::string_view& bytes, EventProperties& event);

}  // namespace tessarine
