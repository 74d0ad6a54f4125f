#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "sample_network/built_in_hosts.h"
#include "sample_network/hosts/event_files.h"
#include "sample_network/hosts/generated_events.h"
#include "sample_network/hosts/sample_host.h"
#include "sample_network/scratch_file.h"

namespace tessarine::sample {
namespace {

const Instant kNewest = Instant{*parse_day("2026-11-20")} + std::chrono::hours(18);

std::vector<SampleEvent> all_events(const EventHistory& history) {
    std::vector<SampleEvent> events;
    const EventWalk walk = history();
    while (const SampleEvent* event = walk()) events.push_back(*event);
    return events;
}

std::string line(const char* log, const char* time, const char* user, const char* message) {
    return std::string(R"({"LogFile": ")") + log + R"(", "Type": "Error", "TimeGenerated": ")" +
           time + R"(", "TimeWritten": ")" + time +
           R"(", "SourceName": "disk", "EventCode": 11, "ComputerName": "PC1", "User": )" + user +
           R"(, "Message": )" + message + "}\n";
}

TEST(SampleEventFile, KeepsOrderAndValues) {
    std::istringstream text(
        line("System", "20230815054620.206000-300", "null", R"("a\r\nb|~\u200e\n")") + "\n" +
        line("System", "20230815054619.000000-300", R"("PC1\\me")", "null") +
        line("Security", "20230815054619.000000+000", R"("")", R"("")"));
    const EventFile file = read_event_file(text, "PC1.jsonl");
    ASSERT_EQ(file.events.size(), 3u);
    EXPECT_EQ(file.offset, std::chrono::minutes(-300));
    EXPECT_EQ(file.events[0].message, "a\r\nb|~\xE2\x80\x8E\n");
    EXPECT_EQ(file.events[0].user, std::nullopt);
    EXPECT_EQ(file.events[0].time_written, parse_dmtf("20230815104620.206000+000")->instant);
    EXPECT_EQ(file.events[0].record_number, 2u);
    EXPECT_EQ(file.events[1].user, "PC1\\me");
    EXPECT_EQ(file.events[1].message, std::nullopt);
    EXPECT_EQ(file.events[2].log_file, "Security");
    EXPECT_EQ(file.events[2].user, "");
}

TEST(SampleEventFile, NamesTheLineThatIsNoEvent) {
    const std::string good = line("System", "20230815054620.206000-300", "null", "null");
    for (const std::string& bad : {std::string("{\"LogFile\": \"System\"}"), std::string("[1]"),
                                   std::string("{"), line("System", "2023-08-15", "null", "null"),
                                   line("System", "20230815054620.206000-300", "7", "null")}) {
        std::istringstream text(good + bad);
        try {
            read_event_file(text, "PC1.jsonl");
            FAIL() << bad;
        } catch (const std::runtime_error& error) {
            EXPECT_THAT(error.what(), testing::StartsWith("PC1.jsonl, line 2: "));
        }
    }
}

TEST(SampleHistory, IsTheSameEveryTimeAndNewestFirst) {
    const auto hosts = built_in_hosts(kNewest, 20);
    const auto events = all_events(hosts.front().history);
    const auto again = all_events(built_in_hosts(kNewest, 20).front().history);
    ASSERT_EQ(events.size(), 5000u);
    ASSERT_EQ(again.size(), events.size());
    std::map<std::string, Instant> last;
    for (std::size_t i = 0; i < events.size(); ++i) {
        ASSERT_EQ(events[i].message, again[i].message);
        ASSERT_EQ(events[i].time_written, again[i].time_written);
        const auto [entry, first] = last.emplace(events[i].log_file, kNewest);
        if (first) {
            EXPECT_EQ(events[i].time_written, kNewest);
        }
        ASSERT_LE(events[i].time_written, entry->second);
        entry->second = events[i].time_written;
    }
    EXPECT_EQ(last.size(), 4u);
    EXPECT_LT(last.at("Security"), kNewest - std::chrono::days(25));
}

// What makes trouble on the way to the store must be among the records.
TEST(SampleHistory, HoldsWhatIsHardToStore) {
    const auto events = all_events(built_in_hosts(kNewest, 20).front().history);
    std::set<std::string> found;
    for (const SampleEvent& event : events) {
        const std::string message = event.message.value_or("");
        if (!event.message) found.insert("no message");
        if (!event.user) found.insert("no user");
        if (message.find('|') != std::string::npos) found.insert("bar");
        if (message.find('~') != std::string::npos) found.insert("tilde");
        if (message.ends_with("time.\n")) found.insert("lone line feed");
        if (message.find("\xE2\x80\x8E") != std::string::npos) found.insert("invisible mark");
        if (std::count(message.begin(), message.end(), '\n') > 25) found.insert("long");
        EXPECT_THAT(message, testing::Not(testing::HasSubstr("{user}")));
    }
    EXPECT_THAT(found, testing::ElementsAre("bar", "invisible mark", "lone line feed", "long",
                                            "no message", "no user", "tilde"));
}

TEST(SampleHistory, SpeaksGermanOnTheGermanHost) {
    std::set<std::string> types;
    for (const SampleEvent& event : all_events(built_in_hosts(kNewest, 20)[1].history))
        types.insert(event.type);
    EXPECT_THAT(types, testing::ElementsAre("Fehler", "Informationen", "Warnung",
                                            "Überwachung erfolgreich", "Überwachungsfehler"));
}

TEST(SampleHosts, AreReadFromAFolder) {
    const ScratchFolder scratch;
    std::filesystem::create_directory(scratch.path() / "hosts");
    EXPECT_THROW(hosts_from_files(scratch.path()), std::runtime_error);
    std::ofstream(scratch.path() / "hosts" / "pc2.jsonl") << "";
    std::ofstream(scratch.path() / "hosts" / "PC1.sample.example.jsonl")
        << line("System", "20230815054620.206000-300", "null", "null");
    std::ofstream(scratch.path() / "hosts" / "notes.txt") << "none of them";
    const auto hosts = hosts_from_files(scratch.path());
    EXPECT_EQ(hosts_file_lines(hosts), "127.0.0.11\tPC1.sample.example\n127.0.0.12\tpc2\n");
    EXPECT_EQ(hosts[0].time_zone->bias, -300);
    EXPECT_EQ(all_events(hosts[0].history).size(), 1u);
    EXPECT_EQ(all_events(hosts[1].history).size(), 0u);
}

}  // namespace
}  // namespace tessarine::sample
