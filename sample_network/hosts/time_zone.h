// The wall clocks of the hosts.
#pragma once

#include <string>

namespace tessarine::sample {

/// When a clock changes: the `week`-th `day_of_week` (0 is Sunday, week 5 is the last one) of
/// `month`, at `hour` of the time before the change. Month 0: never.
struct ClockChange {
    int month = 0;
    int week = 0;
    int day_of_week = 0;
    int hour = 0;
};

/// As a Win32_TimeZone tells it: local time is UTC plus `bias` minutes, and in the daylight time
/// minus `daylight_bias` minutes more.
struct TimeZone {
    std::string name = "UTC";
    int bias = 0;
    int daylight_bias = 0;
    ClockChange to_standard;
    ClockChange to_daylight;
};

/// The summer time of Europe, `bias` minutes before UTC without it.
TimeZone european_zone(const char* name, int bias);
/// The summer time of the south, which lasts over the turn of the year.
TimeZone australian_zone(const char* name, int bias);
TimeZone zone_without_summer_time(const char* name, int bias);

}  // namespace tessarine::sample
