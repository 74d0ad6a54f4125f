#include "adapters/wsman/records/event_items.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/records/cim_datetime.h"
#include "adapters/wsman/records/spooled_events.h"
#include "adapters/wsman/soap/host_words.h"

namespace tessarine {
namespace {

constexpr std::size_t kTimeGenerated = 2;
static_assert(kEventFields[kTimeGenerated].name == "TimeGenerated");

constexpr auto kNames = [] {
    std::array<std::string_view, kEventFields.size()> names;
    std::transform(kEventFields.begin(), kEventFields.end(), names.begin(),
                   [](const EventField& field) { return field.name; });
    return names;
}();

std::string shown_time(std::string_view text, const HostClock& clock) {
    const auto instant = parse_cim_datetime(trimmed(text));
    if (!instant)
        raise_failure("The host sent a time that can't be read: \"" +
                      host_words(text).substr(0, 40) + "\"");
    return dmtf_text(*instant, clock.offset_at(*instant));
}

}  // namespace

ItemReader event_items(std::string& records, HostClock clock) {
    return {kNames, [&records, clock](std::span<ItemValue> values) {
                ItemValue& time = values[kTimeGenerated];
                if (time.present) time.text = shown_time(time.text, clock);
                EventProperties event;
                for (std::size_t i = 0; i < kEventFields.size(); ++i)
                    if (values[i].present) event.*kEventFields[i].property = values[i].text;
                append_event(records, event);
            }};
}

}  // namespace tessarine
