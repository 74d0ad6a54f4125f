#include <gtest/gtest.h>

#include "sample_network/hosts/wql.h"

namespace tessarine::sample {
namespace {

Instant utc(const char* dmtf) {
    return parse_dmtf(dmtf)->instant;
}

TEST(SampleWql, ReadsTheQueriesOfTheConsole) {
    const auto all = parse_wql("SELECT * FROM Win32_NTLogEvent");
    ASSERT_TRUE(all);
    EXPECT_TRUE(all->accepts(utc("19700101000000.000000+000")));

    // The offset belongs to the literal: midnight in Berlin is 23:00 of the day before.
    const auto day = parse_wql(
        "Select * from Win32_NTLogEvent Where TimeWritten >= '20041130000000.000000+060'"
        " and TimeWritten < '20041201000000.000000+060'");
    ASSERT_TRUE(day);
    EXPECT_FALSE(day->accepts(utc("20041129225959.999999+000")));
    EXPECT_TRUE(day->accepts(utc("20041129230000.000000+000")));
    EXPECT_TRUE(day->accepts(utc("20041130225959.999999-000")));
    EXPECT_FALSE(day->accepts(utc("20041130230000.000000+000")));

    const auto open =
        parse_wql("select*from win32_ntlogevent where timewritten>='20041130000000.000000-300'");
    ASSERT_TRUE(open);
    EXPECT_FALSE(open->accepts(utc("20041130045959.000000+000")));
    EXPECT_TRUE(open->accepts(utc("20301130050000.000000+000")));

    EXPECT_EQ(parse_wql("SELECT * FROM Win32_TimeZone")->queried, QueriedClass::TimeZone);
}

TEST(SampleWql, RefusesEverythingElse) {
    for (const char* text :
         {"", "SELECT * FROM Win32_NTLogEvents", "SELECT Message FROM Win32_NTLogEvent",
          "SELECT * FROM Win32_NTLogEvent WHERE", "SELECT * FROM Win32_NTLogEvent;",
          "SELECT * FROM Win32_NTLogEvent WHERE Logfile = 'System'",
          "SELECT * FROM Win32_NTLogEvent WHERE TimeWritten >= '20041130'",
          "SELECT * FROM Win32_NTLogEvent WHERE TimeWritten >= '20041130000000.000000+060",
          "SELECT * FROM Win32_NTLogEvent WHERE TimeWritten >= '20041330000000.000000+060'",
          "SELECT * FROM Win32_NTLogEvent WHERE TimeWritten <= '20041130000000.000000+060'",
          "SELECT * FROM Win32_NTLogEvent WHERE TimeWritten < '20041130000000.000000+060' AND",
          "SELECT * FROM Win32_NTLogEvent WHERE TimeWritten < '20041130000000.000000+060'"
          " AND TimeWritten < '20041130000000.000000+060'",
          "SELECT * FROM Win32_TimeZone WHERE TimeWritten < '20041130000000.000000+060'"})
        EXPECT_FALSE(parse_wql(text)) << text;
}

}  // namespace
}  // namespace tessarine::sample
