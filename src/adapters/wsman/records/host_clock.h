// What a host's wall clock showed at an instant.
#pragma once

#include <chrono>
#include <optional>

#include "adapters/wsman/records/cim_datetime.h"

namespace tessarine {

/// When a clock is put forward or back, as a Win32_TimeZone tells it. With a year it is that day of
/// the month in that year alone. Without one it is the `day`-th `day_of_week` (0 is Sunday) of the
/// month in every year, 5 being the last. Month 0: never. The time is the one that the clock shows
/// before the change.
struct ClockChange {
    int year = 0, month = 0, day = 0, day_of_week = 0;
    int hour = 0, minute = 0, second = 0, millisecond = 0;
};

/// Local time is UTC plus `bias`, and in daylight time minus `daylight_bias` besides.
struct TimeZone {
    std::chrono::minutes bias{0};
    std::chrono::minutes daylight_bias{0};
    ClockChange to_standard, to_daylight;
};

/// Follows the rules that the host has now, in earlier years as well: it doesn't tell others.
class HostClock {
  public:
    /// A clock that shows UTC.
    HostClock() = default;

    /// Nothing for a zone that can't be.
    static std::optional<HostClock> of(const TimeZone& zone);

    /// How far the clock is ahead of UTC.
    std::chrono::minutes offset_at(UtcTime instant) const;

  private:
    explicit HostClock(const TimeZone& zone) : zone_(zone) {}
    bool has_changes() const {
        return zone_.to_standard.month != 0 && zone_.to_daylight.month != 0;
    }
    bool is_daylight_at(UtcTime instant) const;
    std::chrono::minutes daylight_offset() const { return zone_.bias - zone_.daylight_bias; }

    TimeZone zone_;
};

}  // namespace tessarine
