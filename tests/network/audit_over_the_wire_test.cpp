// The audit engine with its real event source and real files, against sample hosts.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "network/wire_rig.h"
#include "sample_network/built_in_hosts.h"
#include "sample_network/hosts/event_files.h"

namespace tessarine {
namespace {

using sample::SampleHost;

constexpr sample::Instant kNewest = std::chrono::sys_days(std::chrono::year{2024} / 5 / 17);

std::vector<SampleHost> hosts_named(const std::vector<std::string>& names) {
    return sample::only_hosts(sample::built_in_hosts(kNewest, 100), names);
}

TEST(AuditOverTheWire, AppendsDoublesAndMovesToTheByte) {
    WireRig rig(hosts_named({"BERLIN01"}));
    auto& settings = rig.console.Form3;
    settings->choose(settings->optAppend);
    rig.audit("BERLIN01");
    ASSERT_EQ(rig.outcome(), "ok: ");
    const std::string once = rig.bytes_of("BERLIN01", "system");
    EXPECT_NE(once.find("Fehler|"), std::string::npos);
    const std::string security = rig.bytes_of("BERLIN01", "security");
    EXPECT_NE(security.find("\xDC"
                            "berwachung"),
              std::string::npos);
    rig.audit("BERLIN01");
    EXPECT_EQ(rig.bytes_of("BERLIN01", "system"), once + once);
    EXPECT_EQ(rig.bytes_of("BERLIN01", "security"), security + security);

    settings->choose(settings->optMove);
    rig.audit("BERLIN01");
    EXPECT_EQ(rig.bytes_of("BERLIN01", "system"), once);
    const auto archived = rig.store() / "Archive" /
                          (rig.address_of("BERLIN01") + "_30-11-04-23-59") /
                          (rig.address_of("BERLIN01") + "_security.log");
    EXPECT_EQ(std::filesystem::file_size(archived), 2 * security.size());
}

TEST(AuditOverTheWire, ADateNarrowsWhatIsPulled) {
    WireRig rig(hosts_named({"BERLIN01"}));
    rig.audit("BERLIN01", "5/10/2024");
    ASSERT_EQ(rig.outcome(), "ok: ");
    const auto since = rig.bytes_of("BERLIN01", "system").size();
    rig.console.Form4->chkSpecificDate.value = 1;
    rig.audit("BERLIN01", "5/10/2024");
    const std::string that_day = rig.bytes_of("BERLIN01", "system");
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
    WireRig rig(std::move(hosts));
    for (const Case& c : cases) {
        rig.audit(c.host);
        EXPECT_EQ(rig.outcome(), "ok: ");
        const std::string rest = "|disk|7|N/A|PC1|m\r\n";
        EXPECT_EQ(rig.bytes_of(c.host, "system"),
                  "Error|" + std::string(c.january) + rest + "Error|" + c.july + rest);
    }
}

TEST(AuditOverTheWire, SaysInWordsWhyAHostGaveNothing) {
    WireRig rig(hosts_named({"BERLIN01", "VAULT01"}));

    rig.audit("VAULT01");
    EXPECT_NE(rig.outcome().find("denied"), std::string::npos) << rig.outcome();
    for (const char* log : {"system", "application", "security"})
        EXPECT_EQ(std::filesystem::file_size(rig.log_of("VAULT01", log)), 0u);

    rig.console.Form3->TxtPassword.text = "wrong-canary-password";
    rig.audit("BERLIN01");
    EXPECT_NE(rig.outcome().find("refused"), std::string::npos) << rig.outcome();
    EXPECT_EQ(rig.outcome().find("canary"), std::string::npos);
    EXPECT_EQ(rig.outcome().rfind("error: ", 0), 0u);
}

// The store must hold exactly the records of the sample files; a script of its own compares them.
TEST(AuditOverTheWire, KeepsEveryRecordOfTheSampleEvents) {
    const std::filesystem::path source(TESSARINE_SOURCE_DIR);
    const auto events = source / ".." / "shared" / "sample-events";
    if (!std::filesystem::exists(events / "hosts")) GTEST_SKIP() << "no sample events here";
    std::vector<SampleHost> hosts = sample::hosts_from_files(events);
    std::vector<std::string> names;
    for (const SampleHost& host : hosts) names.push_back(host.name);
    WireRig rig(std::move(hosts));
    std::string pairs;
    for (const std::string& name : names) {
        rig.audit(name);
        EXPECT_EQ(rig.outcome(), "ok: ") << name;
        pairs += " '" + name + "=" + rig.address_of(name) + "'";
    }
    const std::string check = "python3 '" + (source / "tests/network/check_store.py").string() +
                              "' '" + events.string() + "' '" + rig.store().string() + "'" + pairs;
    EXPECT_EQ(std::system(check.c_str()), 0);
}

}  // namespace
}  // namespace tessarine
