#include "adapters/system/system_clock.h"

#include <algorithm>
#include <ctime>

namespace tessarine {
namespace {

constexpr int kFirstYear = 1900;  // of `std::tm`
constexpr int kLastSecond = 59;   // a leap second counts as this one

}  // namespace

DateTime SystemClock::now() {
    const std::time_t moment = std::time(nullptr);
    std::tm parts{};
    ::tzset();  // the zone may have changed since the last look
    ::localtime_r(&moment, &parts);
    return {.date = {parts.tm_year + kFirstYear, parts.tm_mon + 1, parts.tm_mday},
            .time = {parts.tm_hour, parts.tm_min, std::min(parts.tm_sec, kLastSecond)}};
}

int SystemClock::minutes_ahead_of_utc(const DateTime& local) {
    std::tm parts{};
    parts.tm_year = local.date.year - kFirstYear;
    parts.tm_mon = local.date.month - 1;
    parts.tm_mday = local.date.day;
    parts.tm_hour = local.time.hour;
    parts.tm_min = local.time.minute;
    parts.tm_sec = local.time.second;
    parts.tm_isdst = -1;  // whether it was summer time is for the zone to say
    // What is no moment leaves the zone's distance at 0.
    static_cast<void>(std::mktime(&parts));
    return static_cast<int>(parts.tm_gmtoff / 60);
}

}  // namespace tessarine
