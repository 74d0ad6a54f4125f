#include "store/event_record.h"

#include <gtest/gtest.h>

#include <string>

#include "core/regional_text.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

EventProperties sample_event() {
    return {.LogFile = "System",
            .Type = "Fehler",
            .TimeGenerated = "20041130235959.123456+060",
            .SourceName = "EventLog",
            .EventCode = "6008",
            .ComputerName = "DC01",
            .Message = "one\r\ntwo\r\nthree",
            .User = "CONTOSO\\anna"};
}

std::string written(const EventProperties& event) {
    const RegionalText regional;
    RecordWriter writer(regional);
    return std::string(writer.line_of(event));
}

TEST(EventRecord, SplitsAtEveryBarAndUsesTheFirstEightFields) {
    const EventRecord record("Error|1/2/2024|1:02:03 AM|Disk|7||PC1|a~b|c|d");
    EXPECT_TRUE(record.complete());
    EXPECT_EQ(record.field(Field::Event), "7");
    EXPECT_EQ(record.field(Field::User), "");
    EXPECT_EQ(record.field(Field::Message), "a~b");

    const EventRecord shorter("Error|1/2/2024|");
    EXPECT_FALSE(shorter.complete());
    EXPECT_EQ(shorter.field(2), "");
    EXPECT_THROW(shorter.field(3), RuntimeError);
    EXPECT_EQ(EventRecord("a|b|c|d|e|f|g|").field(7), "");
}

TEST(RecordWriter, WritesTheHostsWallClockWhateverTheOffset) {
    EXPECT_EQ(written(sample_event()),
              "Fehler|11/30/2004|11:59:59 PM|EventLog|6008|CONTOSO\\anna|DC01|one~two~three\r\n");
}

TEST(RecordWriter, FillsOnlyAnEmptyUserAndReplacesOnlyWholeLineEnds) {
    EventProperties event = sample_event();
    event.User.reset();
    event.Message = "a~b\rc\nd|e\r\n";
    event.SourceName.reset();
    EXPECT_EQ(written(event), "Fehler|11/30/2004|11:59:59 PM||6008|N/A|DC01|a~b\rc\nd|e~\r\n");
}

// Most of a message is looked through in blocks of bytes.
TEST(RecordWriter, FindsALineEndAtAnyPlaceOfALongMessage) {
    EventProperties event = sample_event();
    for (std::size_t before = 0; before < 70; ++before)
        for (const std::size_t after : {0, 1, 15, 16, 40}) {
            const std::string first(before, 'a');
            const std::string second(after, 'b');
            const std::string message = first + "\r\n" + second + '\r' + second;
            event.Message = message;
            const std::string line = written(event);
            EXPECT_EQ(line.substr(line.rfind('|') + 1),
                      first + '~' + second + '\r' + second + "\r\n");
        }
}

TEST(RecordWriter, RefusesAMomentThatIsNone) {
    for (const char* stamp : {"", "2004", "20041330000000.0+000", "20040230000000.0+000",
                              "20041130240000.0+000", "2004113000000x.0+000"}) {
        EventProperties event = sample_event();
        event.TimeGenerated = stamp;
        EXPECT_THROW(written(event), RuntimeError) << stamp;
    }
}

TEST(RecordWriter, ForgetsNoDateBetweenTwoRecords) {
    const RegionalText regional;
    RecordWriter writer(regional);
    EventProperties event = sample_event();
    EXPECT_NE(std::string(writer.line_of(event)).find("11/30/2004"), std::string::npos);
    event.TimeGenerated = "20050101000000.000000+060";
    EXPECT_NE(std::string(writer.line_of(event)).find("1/1/2005|12:00:00 AM"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
