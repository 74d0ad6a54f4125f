#include "adapters/wsman/records/host_clock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/wsman/records/cim_datetime.h"

namespace tessarine {
namespace {

using std::chrono::minutes;

TimeZone berlin() {
    return {.bias = minutes(60),
            .daylight_bias = minutes(-60),
            .to_standard = {.month = 10, .day = 5, .hour = 3},
            .to_daylight = {.month = 3, .day = 5, .hour = 2}};
}

TimeZone new_york() {
    return {.bias = minutes(-300),
            .daylight_bias = minutes(-60),
            .to_standard = {.month = 11, .day = 1, .hour = 2},
            .to_daylight = {.month = 3, .day = 2, .hour = 2}};
}

// Half an hour off, and half an hour forward in summer.
TimeZone lord_howe() {
    return {.bias = minutes(630),
            .daylight_bias = minutes(-30),
            .to_standard = {.month = 4, .day = 1, .hour = 2},
            .to_daylight = {.month = 10, .day = 1, .hour = 2}};
}

// On the last millisecond of the fourth and the first Saturday.
TimeZone asuncion() {
    return {.bias = minutes(-240),
            .daylight_bias = minutes(-60),
            .to_standard = {0, 3, 4, 6, 23, 59, 59, 999},
            .to_daylight = {0, 10, 1, 6, 23, 59, 59, 999}};
}

std::string shown(const HostClock& clock, std::string_view utc) {
    const UtcTime instant = parse_cim_datetime(utc).value();
    return dmtf_text(instant, clock.offset_at(instant));
}

TEST(HostClock, ShowsUtcUnlessItIsToldOtherwise) {
    EXPECT_EQ(shown(HostClock(), "2024-07-01T12:00:00Z"), "20240701120000.000000+000");
}

TEST(HostClock, IsPutForwardAndBackToTheMicrosecond) {
    struct Case {
        TimeZone zone;
        std::string_view utc, local;
    };
    const Case cases[] = {
        {berlin(), "2024-03-31T00:59:59.999999Z", "20240331015959.999999+060"},
        {berlin(), "2024-03-31T01:00:00Z", "20240331030000.000000+120"},
        {berlin(), "2024-10-27T00:59:59.999999Z", "20241027025959.999999+120"},
        {berlin(), "2024-10-27T01:00:00Z", "20241027020000.000000+060"},
        {berlin(), "2023-12-31T22:59:59Z", "20231231235959.000000+060"},
        {berlin(), "2023-12-31T23:00:00Z", "20240101000000.000000+060"},
        {berlin(), "2015-08-01T00:00:00Z", "20150801020000.000000+120"},
        {new_york(), "2024-03-10T06:59:59Z", "20240310015959.000000-300"},
        {new_york(), "2024-03-10T07:00:00Z", "20240310030000.000000-240"},
        {new_york(), "2024-11-03T05:59:59Z", "20241103015959.000000-240"},
        {new_york(), "2024-11-03T06:00:00Z", "20241103010000.000000-300"},
        {lord_howe(), "2024-04-06T14:59:59Z", "20240407015959.000000+660"},
        {lord_howe(), "2024-04-06T15:00:00Z", "20240407013000.000000+630"},
        {lord_howe(), "2024-10-05T15:29:59Z", "20241006015959.000000+630"},
        {lord_howe(), "2024-10-05T15:30:00Z", "20241006023000.000000+660"},
        {lord_howe(), "2024-12-31T12:59:59Z", "20241231235959.000000+660"},
        {lord_howe(), "2024-12-31T13:00:00Z", "20250101000000.000000+660"},
        {lord_howe(), "2024-12-31T13:30:00Z", "20250101003000.000000+660"},
        {asuncion(), "2024-03-24T02:59:59.998999Z", "20240323235959.998999-180"},
        {asuncion(), "2024-03-24T02:59:59.999Z", "20240323225959.999000-240"},
        {asuncion(), "2024-10-06T03:59:59.998999Z", "20241005235959.998999-240"},
        {asuncion(), "2024-10-06T03:59:59.999Z", "20241006005959.999000-180"},
    };
    for (const Case& c : cases) EXPECT_EQ(shown(*HostClock::of(c.zone), c.utc), c.local) << c.utc;
}

TEST(HostClock, IsNeverChangedWithoutBothChanges) {
    TimeZone india{
        .bias = minutes(330), .daylight_bias = minutes(-60), .to_standard = {}, .to_daylight = {}};
    EXPECT_EQ(shown(*HostClock::of(india), "2024-06-30T18:30:00Z"), "20240701000000.000000+330");
    india.to_daylight = berlin().to_daylight;
    EXPECT_EQ(shown(*HostClock::of(india), "2024-06-30T18:30:00Z"), "20240701000000.000000+330");
}

TEST(HostClock, KeepsAnAbsoluteDateToItsYear) {
    TimeZone zone = berlin();
    zone.to_daylight = {.year = 2010, .month = 8, .day = 11, .hour = 2};
    zone.to_standard = {.year = 2010, .month = 9, .day = 9, .hour = 3};
    const HostClock clock = *HostClock::of(zone);
    EXPECT_EQ(shown(clock, "2010-08-11T00:59:59Z"), "20100811015959.000000+060");
    EXPECT_EQ(shown(clock, "2010-08-11T01:00:00Z"), "20100811030000.000000+120");
    EXPECT_EQ(shown(clock, "2010-09-09T01:00:00Z"), "20100909020000.000000+060");
    for (const char* year : {"1960", "2009", "2011"})
        EXPECT_THAT(shown(clock, std::string(year) + "-08-20T00:00:00Z"),
                    testing::EndsWith("+060"));
}

TEST(HostClock, CountsYearsByTheHostsOwnCalendar) {
    TimeZone sydney{
        .bias = minutes(600), .daylight_bias = minutes(-60), .to_standard = {}, .to_daylight = {}};
    sydney.to_standard = {.year = 2010, .month = 4, .day = 4, .hour = 3};
    sydney.to_daylight = {.year = 2010, .month = 10, .day = 3, .hour = 2};
    const HostClock clock = *HostClock::of(sydney);
    EXPECT_EQ(shown(clock, "2009-12-31T13:59:59Z"), "20091231235959.000000+600");
    EXPECT_EQ(shown(clock, "2009-12-31T14:00:00Z"), "20100101010000.000000+660");
    EXPECT_EQ(shown(clock, "2010-12-31T13:59:59Z"), "20110101005959.000000+660");
    EXPECT_EQ(shown(clock, "2010-12-31T14:00:00Z"), "20110101000000.000000+600");
}

TEST(HostClock, IsNoneForAZoneThatCantBe) {
    using Spoil = void (*)(TimeZone&);
    const Spoil spoils[] = {
        [](TimeZone& zone) { zone.bias = minutes(841); },
        [](TimeZone& zone) { zone.bias = minutes(-841); },
        [](TimeZone& zone) { zone.daylight_bias = minutes(-781); },
        [](TimeZone& zone) { zone.to_standard.month = 13; },
        [](TimeZone& zone) { zone.to_standard.month = -1; },
        [](TimeZone& zone) { zone.to_standard.day = 0; },
        [](TimeZone& zone) { zone.to_standard.day = 6; },
        [](TimeZone& zone) { zone.to_daylight.day_of_week = 7; },
        [](TimeZone& zone) { zone.to_daylight.hour = 24; },
        [](TimeZone& zone) { zone.to_daylight.minute = 60; },
        [](TimeZone& zone) { zone.to_daylight.second = -1; },
        [](TimeZone& zone) { zone.to_daylight.millisecond = 1000; },
        [](TimeZone& zone) { zone.to_daylight.year = 70000; },
        [](TimeZone& zone) { zone.to_daylight = {.year = 2023, .month = 2, .day = 29}; },
    };
    for (std::size_t i = 0; i < std::size(spoils); ++i) {
        TimeZone zone = berlin();
        spoils[i](zone);
        EXPECT_FALSE(HostClock::of(zone)) << i;
    }
}

}  // namespace
}  // namespace tessarine
