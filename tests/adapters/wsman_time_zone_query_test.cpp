#include "adapters/wsman/records/time_zone_query.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/wsman/basics/limits.h"
#include "wsman_scripted_channel.h"

namespace tessarine {
namespace {

using testing::ElementsAre;

std::string property(const std::string& name, const std::string& value) {
    return "<p:" + name + " xmlns:p=\"urn:zone\">" + value + "</p:" + name + ">";
}

const std::string kBias = property("Bias", "570") + property("DaylightBias", " -60 ");
const std::string kChanges = property("StandardMonth", "4") + property("StandardDay", "1") +
                             property("StandardDayOfWeek", "0") + property("StandardHour", "3") +
                             property("StandardMinute", "0") + property("StandardSecond", "0") +
                             property("StandardMillisecond", "0") + property("StandardYear", "0") +
                             property("StandardBias", "0") + property("StandardName", "ACST") +
                             property("DaylightYear", "0") + property("DaylightMonth", "10") +
                             property("DaylightDay", "1") + property("DaylightDayOfWeek", "0") +
                             property("DaylightHour", "2") + property("DaylightMinute", "0") +
                             property("DaylightSecond", "0") + property("DaylightMillisecond", "0");

std::string zone(const std::string& properties) {
    return "<E>" + properties + "</E>";
}

// The offsets in January and in July, or the words of a failure.
std::string offsets(ScriptedChannel& channel) {
    const SoapRequests requests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(60));
    try {
        const HostClock clock = ask_host_clock(channel, requests);
        const auto offset_in = [&](unsigned month) {
            const auto day = std::chrono::year(2024) / std::chrono::month(month) / 1;
            return std::to_string(clock.offset_at(std::chrono::sys_days(day)).count());
        };
        return offset_in(1) + " " + offset_in(7);
    } catch (const RuntimeError& error) {
        return "failed: " + error.description();
    }
}

std::string offsets(std::deque<std::string> bodies) {
    ScriptedChannel channel(std::move(bodies));
    return offsets(channel);
}

std::string offsets_of_zone(const std::string& properties) {
    return offsets({first_answer("A"), answer("", zone(properties), kEnd)});
}

TEST(TimeZoneQuery, ReadsTheOneItemAndEnds) {
    ScriptedChannel channel(
        {first_answer("A"), answer("B", zone(kBias + kChanges)), answer("", "", kEnd)});
    EXPECT_EQ(offsets(channel), "630 570");
    EXPECT_THAT(channel.filters, ElementsAre("SELECT * FROM Win32_TimeZone"));
    EXPECT_THAT(channel.calls, ElementsAre("Enumerate", "Pull A", "Pull B"));
}

TEST(TimeZoneQuery, TakesWhatTheHostLeavesOutForNever) {
    EXPECT_EQ(offsets_of_zone(property("Bias", "-210")), "-210 -210");
    EXPECT_EQ(offsets_of_zone(property("Bias", "60") + property("StandardMonth", "0") +
                              property("DaylightMonth", "0")),
              "60 60");
}

TEST(TimeZoneQuery, StaysWithUtcWhereTheHostTellsNone) {
    EXPECT_EQ(offsets({fault(5, "Access is denied.")}), "0 0");
    EXPECT_EQ(offsets({first_answer("A"), fault(14, "Out of order.")}), "0 0");
    EXPECT_EQ(offsets({"<n:EnumerateResponse/>"}), "0 0");
    EXPECT_EQ(offsets({"<unclosed>"}), "0 0");
    EXPECT_EQ(offsets({first_answer("A"), answer("B", zone(kBias + kChanges)), fault(14, "")}),
              "0 0");
    const std::string nil =
        " xsi:nil=\"true\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
    for (const std::string& properties : std::vector<std::string>{
             "", kChanges, property("Bias", ""), "<Bias" + nil + "/>", property("Bias", "1e2"),
             property("Bias", "99999999999"), property("Bias", "900"),
             property("Bias", "60") + kChanges, kBias + kChanges + property("StandardMonth", "13"),
             kBias + kChanges + property("StandardMonth", "May")})
        EXPECT_EQ(offsets_of_zone(properties), "0 0") << properties;
}

TEST(TimeZoneQuery, FailsWhenTheConnectionIsLost) {
    EXPECT_EQ(offsets({""}), "failed: lost");
    EXPECT_EQ(offsets({first_answer("A"), ""}), "failed: lost");
}

TEST(TimeZoneQuery, LeavesAHostThatNeverEnds) {
    ScriptedChannel channel({first_answer("A"), answer("A", zone(kBias))});
    offsets(channel);
    EXPECT_EQ(channel.calls.size(), 1u + limits::kTimeZonePulls + 1u);
    EXPECT_EQ(channel.calls.back(), "Release A");
}

}  // namespace
}  // namespace tessarine
