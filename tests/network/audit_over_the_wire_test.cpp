// The audit engine with its real event source and real files, against sample hosts.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "network/wire_bench.h"
#include "sample_network/hosts/event_files.h"

namespace tessarine {
namespace {

using sample::SampleHost;

constexpr sample::Instant kNewest = std::chrono::sys_days(std::chrono::year{2024} / 5 / 17);

std::vector<SampleHost> hosts_named(const std::vector<std::string>& names) {
    return sample::only_hosts(sample::built_in_hosts(kNewest, 100), names);
}

TEST(AuditOverTheWire, AppendsDoublesAndMovesToTheByte) {
    WireBench bench(hosts_named({"BERLIN01"}));
    auto& settings = bench.console.Form3;
    settings->choose(settings->optAppend);
    bench.audit("BERLIN01");
    ASSERT_EQ(bench.outcome(), "ok: ");
    const std::string once = bench.bytes_of("BERLIN01", "system");
    EXPECT_NE(once.find("Fehler|"), std::string::npos);
    const std::string security = bench.bytes_of("BERLIN01", "security");
    EXPECT_NE(security.find("\xDC"
                            "berwachung"),
              std::string::npos);
    bench.audit("BERLIN01");
    EXPECT_EQ(bench.bytes_of("BERLIN01", "system"), once + once);
    EXPECT_EQ(bench.bytes_of("BERLIN01", "security"), security + security);

    settings->choose(settings->optMove);
    bench.audit("BERLIN01");
    EXPECT_EQ(bench.bytes_of("BERLIN01", "system"), once);
    const auto archived = bench.store() / "Archive" /
                          (bench.address_of("BERLIN01") + "_30-11-04-23-59") /
                          (bench.address_of("BERLIN01") + "_security.log");
    EXPECT_EQ(std::filesystem::file_size(archived), 2 * security.size());
}

TEST(AuditOverTheWire, ADateNarrowsWhatIsPulled) {
    WireBench bench(hosts_named({"BERLIN01"}));
    bench.audit("BERLIN01", "5/10/2024");
    ASSERT_EQ(bench.outcome(), "ok: ");
    const auto since = bench.bytes_of("BERLIN01", "system").size();
    bench.console.Form4->chkSpecificDate.value = 1;
    bench.audit("BERLIN01", "5/10/2024");
    const std::string that_day = bench.bytes_of("BERLIN01", "system");
    EXPECT_LT(that_day.size(), since);
    EXPECT_FALSE(that_day.empty());
    EXPECT_EQ(that_day.find("|5/12/2024|"), std::string::npos);
}

// Each record at noon UTC.
sample::EventHistory history_on(std::initializer_list<std::chrono::sys_days> days) {
    std::vector<sample::SampleEvent> events;
    for (const std::chrono::sys_days day : days) {
        const sample::Instant noon = day + std::chrono::hours(12);
        events.push_back({.log_file = "System",
                          .type = "Error",
                          .source_name = "disk",
                          .event_code = 7,
                          .computer_name = "PC1",
                          .message = "m",
                          .time_generated = noon,
                          .time_written = noon});
    }
    return sample::history_of(std::move(events));
}

TEST(AuditOverTheWire, ShowsTheHostsOwnWallClock) {
    struct Case {
        const char *host, *january, *july;
    };
    const Case cases[] = {
        {"BERLIN01", "1/15/2024|1:00:00 PM", "7/15/2024|2:00:00 PM"},
        {"WEBSRV02", "1/15/2024|11:00:00 PM", "7/15/2024|10:00:00 PM"},
        {"LOGSRV01", "1/15/2024|5:30:00 PM", "7/15/2024|5:30:00 PM"},
        {"BRANCH09", "1/15/2024|12:00:00 PM", "7/15/2024|12:00:00 PM"},
    };
    std::vector<SampleHost> hosts = hosts_named({"BERLIN01", "WEBSRV02", "LOGSRV01", "BRANCH09"});
    constexpr auto kYear = std::chrono::year{2024};
    for (SampleHost& host : hosts) host.history = history_on({kYear / 1 / 15, kYear / 7 / 15});
    WireBench bench(std::move(hosts));
    for (const Case& c : cases) {
        bench.audit(c.host);
        EXPECT_EQ(bench.outcome(), "ok: ");
        const std::string rest = "|disk|7|N/A|PC1|m\r\n";
        EXPECT_EQ(bench.bytes_of(c.host, "system"),
                  "Error|" + std::string(c.january) + rest + "Error|" + c.july + rest);
    }
}

TEST(AuditOverTheWire, SaysInWordsWhyAHostGaveNothing) {
    WireBench bench(hosts_named({"BERLIN01", "VAULT01"}));

    bench.audit("VAULT01");
    EXPECT_NE(bench.outcome().find("denied"), std::string::npos) << bench.outcome();
    for (const char* log : {"system", "application", "security"})
        EXPECT_EQ(std::filesystem::file_size(bench.log_of("VAULT01", log)), 0u);

    bench.console.Form3->TxtPassword.text = "wrong-canary-password";
    bench.audit("BERLIN01");
    EXPECT_NE(bench.outcome().find("refused"), std::string::npos) << bench.outcome();
    EXPECT_EQ(bench.outcome().find("canary"), std::string::npos);
    EXPECT_EQ(bench.outcome().rfind("error: ", 0), 0u);
}

// The store must hold exactly the records of the sample files; a script of its own compares them.
TEST(AuditOverTheWire, KeepsEveryRecordOfTheSampleEvents) {
    const std::filesystem::path source(TESSARINE_SOURCE_DIR);
    const auto events = source / ".." / "shared" / "sample-events";
    if (!std::filesystem::exists(events / "hosts")) GTEST_SKIP() << "no sample events here";
    std::vector<SampleHost> hosts = sample::hosts_from_files(events);
    std::vector<std::string> names;
    for (const SampleHost& host : hosts) names.push_back(host.name);
    WireBench bench(std::move(hosts));
    std::string pairs;
    for (const std::string& name : names) {
        bench.audit(name);
        EXPECT_EQ(bench.outcome(), "ok: ") << name;
        pairs += " '" + name + "=" + bench.address_of(name) + "'";
    }
    const std::string check = "python3 '" + (source / "tests/network/check_store.py").string() +
                              "' '" + events.string() + "' '" + bench.store().string() + "'" +
                              pairs;
    EXPECT_EQ(std::system(check.c_str()), 0);
}

}  // namespace
}  // namespace tessarine
