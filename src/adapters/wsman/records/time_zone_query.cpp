#include "adapters/wsman/records/time_zone_query.h"

#include <array>
#include <charconv>
#include <limits>
#include <span>
#include <string_view>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/soap/enumeration.h"
#include "adapters/wsman/soap/item_reader.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kToStandard = 2;
constexpr std::size_t kToDaylight = 10;
constexpr std::array<std::string_view, 18> kNames = {
    "Bias",           "DaylightBias",        "StandardYear", "StandardMonth",
    "StandardDay",    "StandardDayOfWeek",   "StandardHour", "StandardMinute",
    "StandardSecond", "StandardMillisecond", "DaylightYear", "DaylightMonth",
    "DaylightDay",    "DaylightDayOfWeek",   "DaylightHour", "DaylightMinute",
    "DaylightSecond", "DaylightMillisecond",
};
static_assert(kNames[kToStandard] == "StandardYear" && kNames[kToDaylight] == "DaylightYear");

// Fits nowhere in a time zone.
constexpr int kNonsense = std::numeric_limits<int>::min();

int number_in(const ItemValue& value, int when_null) {
    if (!value.present) return when_null;
    const std::string_view digits = trimmed(value.text);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? number : kNonsense;
}

// Of the values from the change's year on. A host whose clock is never changed may leave them out.
ClockChange change_in(std::span<const ItemValue> values) {
    const auto number = [&](std::size_t i) { return number_in(values[i], 0); };
    return {.year = number(0),
            .month = number(1),
            .day = number(2),
            .day_of_week = number(3),
            .hour = number(4),
            .minute = number(5),
            .second = number(6),
            .millisecond = number(7)};
}

TimeZone zone_in(std::span<const ItemValue> values) {
    return {.bias = std::chrono::minutes(number_in(values[0], kNonsense)),
            .daylight_bias = std::chrono::minutes(number_in(values[1], kNonsense)),
            .to_standard = change_in(values.subspan(kToStandard)),
            .to_daylight = change_in(values.subspan(kToDaylight))};
}

}  // namespace

HostClock ask_host_clock(SoapChannel& channel, const SoapRequests& requests) {
    HostClock clock;
    ItemReader items(kNames, [&](std::span<const ItemValue> values) {
        clock = HostClock::of(zone_in(values)).value_or(HostClock());
    });
    try {
        Enumeration enumeration(channel, requests);
        enumeration.start("SELECT * FROM Win32_TimeZone", items);
        for (int i = 0; i < limits::kTimeZonePulls && !enumeration.is_finished(); ++i)
            enumeration.pull(items);
    } catch (const RuntimeError&) {
        if (!channel.is_usable()) throw;
        return {};
    }
    return clock;
}

}  // namespace tessarine
