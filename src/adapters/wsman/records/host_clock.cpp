#include "adapters/wsman/records/host_clock.h"

namespace tessarine {
namespace {

using std::chrono::year;

constexpr std::chrono::minutes kFarthest = std::chrono::hours(14);
constexpr int kLastWeek = 5;

bool is_between(int value, int least, int most) {
    return value >= least && value <= most;
}

bool can_be(std::chrono::minutes offset) {
    return offset >= -kFarthest && offset <= kFarthest;
}

std::chrono::month month_of(const ClockChange& change) {
    return std::chrono::month(static_cast<unsigned>(change.month));
}

std::chrono::year_month_day absolute_date(const ClockChange& change) {
    return year(change.year) / month_of(change) / change.day;
}

bool has_day(const ClockChange& change) {
    if (change.year == 0)
        return is_between(change.day, 1, kLastWeek) && is_between(change.day_of_week, 0, 6);
    return is_between(change.year, 1601, 9999) && is_between(change.day, 1, 31) &&
           absolute_date(change).ok();
}

bool can_be(const ClockChange& change) {
    return is_between(change.month, 1, 12) && has_day(change) && is_between(change.hour, 0, 23) &&
           is_between(change.minute, 0, 59) && is_between(change.second, 0, 59) &&
           is_between(change.millisecond, 0, 999);
}

std::chrono::local_days day_of(const ClockChange& change, year in_year) {
    if (change.year != 0) return std::chrono::local_days(absolute_date(change));
    const std::chrono::year_month month = in_year / month_of(change);
    const std::chrono::weekday weekday(static_cast<unsigned>(change.day_of_week));
    if (change.day == kLastWeek) return std::chrono::local_days(month / weekday[std::chrono::last]);
    return std::chrono::local_days(month / weekday[static_cast<unsigned>(change.day)]);
}

UtcTime instant_of(const ClockChange& change, year in_year, std::chrono::minutes offset_before) {
    const auto local = day_of(change, in_year) + std::chrono::hours(change.hour) +
                       std::chrono::minutes(change.minute) + std::chrono::seconds(change.second) +
                       std::chrono::milliseconds(change.millisecond);
    return UtcTime(local.time_since_epoch() - offset_before);
}

bool is_in(const ClockChange& change, year in_year) {
    return change.year == 0 || year(change.year) == in_year;
}

}  // namespace

std::optional<HostClock> HostClock::of(const TimeZone& zone) {
    const HostClock clock(zone);
    if (!can_be(zone.bias)) return std::nullopt;
    if (!clock.has_changes()) return clock;
    if (!can_be(clock.daylight_offset()) || !can_be(zone.to_standard) || !can_be(zone.to_daylight))
        return std::nullopt;
    return clock;
}

std::chrono::minutes HostClock::offset_at(UtcTime instant) const {
    return has_changes() && is_daylight_at(instant) ? daylight_offset() : zone_.bias;
}

bool HostClock::is_daylight_at(UtcTime instant) const {
    const auto local_day = std::chrono::floor<std::chrono::days>(instant + zone_.bias);
    const year local_year = std::chrono::year_month_day(local_day).year();
    if (!is_in(zone_.to_standard, local_year) || !is_in(zone_.to_daylight, local_year))
        return false;
    const UtcTime to_standard = instant_of(zone_.to_standard, local_year, daylight_offset());
    const UtcTime to_daylight = instant_of(zone_.to_daylight, local_year, zone_.bias);
    // South of the equator the year begins and ends in daylight time.
    return to_daylight <= to_standard ? instant >= to_daylight && instant < to_standard
                                      : instant >= to_daylight || instant < to_standard;
}

}  // namespace tessarine
