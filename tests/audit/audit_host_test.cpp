#include "audit/audit_host.h"

#include <gtest/gtest.h>

#include <string>

#include "audit/event_query.h"
#include "core/code_page.h"
#include "fakes/bench.h"
#include "fakes/drawn.h"

namespace tessarine {
namespace {

using fakes::Bench;
using fakes::drawn;
using fakes::FileStep;
using fakes::HostEvent;
using fakes::ScriptedHost;

constexpr const char* kSystem = "/app/Data/PC1_system.log";
constexpr const char* kApplication = "/app/Data/PC1_application.log";
constexpr const char* kSecurity = "/app/Data/PC1_security.log";
constexpr const char* kAuditLog = "/app/Logs/30-11-2004.log";

ScriptedHost three_records() {
    ScriptedHost host;
    host.records = {HostEvent{},
                    HostEvent{.LogFile = "Application", .Type = "Fehler", .Message = "a\r\nb"},
                    HostEvent{.LogFile = "Windows PowerShell"},
                    HostEvent{.LogFile = "Security", .Type = "audit success", .User = "PC1\\eva"}};
    return host;
}

class AuditHostTest : public testing::Test {
  protected:
    void audit(const std::string& kind = "full", const LogSelection& logs = {}) {
        bench.run([&](Console& console) { AuditHost(console, "PC1", kind, logs); });
    }
    void fill_old_files() {
        for (const char* path : {kSystem, kApplication, kSecurity})
            bench.files.put(path, "old\r\n");
    }

    Bench bench;
    ScriptedHost& host = bench.network.hosts["PC1"] = three_records();
};

TEST_F(AuditHostTest, WritesEachLogInTheHostsOrderAndDropsOthers) {
    fakes::StatusHistory history(bench.console.Form1.st1);
    audit();
    EXPECT_EQ(bench.files.bytes(kSystem),
              "information|11/30/2004|11:59:59 PM|Tcpip|4201|N/A|PC1|Ready.\r\n");
    EXPECT_EQ(bench.files.bytes(kApplication),
              "Fehler|11/30/2004|11:59:59 PM|Tcpip|4201|N/A|PC1|a~b\r\n");
    EXPECT_EQ(bench.files.bytes(kSecurity),
              "audit success|11/30/2004|11:59:59 PM|Tcpip|4201|PC1\\eva|PC1|Ready.\r\n");
    EXPECT_EQ(bench.files.bytes(kAuditLog), "11/30/2004 11:59:59 PM PC1 Audit ok\r\n");
    EXPECT_EQ(history.lines, R"(1: Attempting connection to host: PC1
1: Processing Host: PC1
3:  Reading log file : 1
3:  Reading log file : 2
3:  Reading log file : 3
3:  Reading log file : 4
3:  processing record : 1/4
3:  processing record : 2/4
3:  processing record : 3/4
3:  processing record : 4/4
1: )"
                             "\n3: \n");
    EXPECT_EQ(drawn(bench, "AuditStat pbar1"), "\nAuditStat: \"ok\"\npbar1: 0/4 hidden\n");
    EXPECT_EQ(bench.network.log,
              "connect PC1 root\\cimv2\nauthentication 6\nimpersonation 3\n"
              "query SELECT * FROM Win32_NTLogEvent\n");
    EXPECT_EQ(bench.console.mouse_pointer, kPointerDefault);
}

TEST_F(AuditHostTest, UsesTheAlternateCredentialsOnlyWhenTheyAreOn) {
    audit();
    EXPECT_FALSE(bench.network.credentials.has_value());
    bench.console.Form3->Check1.value = 1;
    bench.console.Form3->TxtUsername.text = "";
    bench.console.Form3->TxtPassword.text = "secret";
    audit();
    ASSERT_TRUE(bench.network.credentials.has_value());
    EXPECT_EQ(bench.network.credentials->user, "");
    EXPECT_EQ(bench.network.credentials->password, "secret");
}

TEST_F(AuditHostTest, AppendsOverwritesOrMovesWhatIsThere) {
    auto& settings = bench.console.Form3;
    settings->choose(settings->optAppend);
    audit();
    const std::string once = bench.files.bytes(kSystem);
    audit();
    EXPECT_EQ(bench.files.bytes(kSystem), once + once);

    settings->choose(settings->optMove);
    audit();
    EXPECT_EQ(bench.files.bytes(kSystem), once);
    EXPECT_EQ(bench.files.bytes("/app/Archive/PC1_30-11-04-23-59/PC1_system.log"), once + once);

    settings->choose(settings->optOverwrite);
    audit();
    EXPECT_EQ(bench.files.bytes(kSystem), once);
}

// KEEP(every-log-file-is-opened)
TEST_F(AuditHostTest, EmptiesTheLogsThatAreNotSelectedToo) {
    fill_old_files();
    audit("full", {.SelSystem = true, .SelApplication = false, .SelSecurity = false});
    EXPECT_NE(bench.files.bytes(kSystem), "");
    EXPECT_EQ(bench.files.bytes(kApplication), "");
    EXPECT_EQ(bench.files.bytes(kSecurity), "");
}

TEST_F(AuditHostTest, LeavesTheFilesOfAHostWithoutRecordsAlone) {
    fill_old_files();
    host.records.clear();
    audit();
    EXPECT_EQ(bench.files.bytes(kSystem), "old\r\n");
    EXPECT_EQ(bench.files.bytes(kAuditLog),
              "11/30/2004 11:59:59 PM PC1 Audit ok - Zero Records Returned From The Client\r\n");
    EXPECT_EQ(drawn(bench, "AuditStat st1"), "\nAuditStat: \"ok\"\nst1: [Zero records][][][][]\n");
}

TEST_F(AuditHostTest, NamesTheCauseOfAFailureAndTouchesNoFileBeforeTheyAreOpened) {
    const struct {
        const char* name;
        std::function<void(ScriptedHost&)> break_it;
        const char* cause;
    } cases[] = {
        {"connect", [](ScriptedHost& h) { h.connect_error = "Access is denied"; },
         "Access is denied"},
        {"levels", [](ScriptedHost& h) { h.level_error = "No sealing"; }, "No sealing"},
        {"query", [](ScriptedHost& h) { h.query_error = "Invalid query"; }, "Invalid query"},
        {"count", [](ScriptedHost& h) { h.failing_pass = 1, h.failing_record = 3; },
         "The network path was lost"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        fill_old_files();
        bench.files.put(kAuditLog, "");
        host = three_records();
        each.break_it(host);
        audit();
        EXPECT_EQ(bench.files.bytes(kSystem), "old\r\n");
        EXPECT_EQ(bench.files.bytes(kAuditLog),
                  std::string("11/30/2004 11:59:59 PM PC1 Audit Error --") + each.cause + "\r\n");
        EXPECT_EQ(drawn(bench, "AuditStat st1 pbar1"),
                  std::string("\nAuditStat: \"error\"\nst1: [") + each.cause +
                      " - Audit error][][][][]\npbar1: 0/100 hidden\n");
        EXPECT_EQ(bench.files.open_files(), 0);
    }
}

TEST_F(AuditHostTest, KeepsWhatWasWrittenWhenTheSecondWalkFails) {
    host.records[1].TimeGenerated = "no time";
    audit();
    EXPECT_NE(bench.files.bytes(kSystem), "");
    EXPECT_EQ(bench.files.bytes(kAuditLog),
              "11/30/2004 11:59:59 PM PC1 Audit Error --Type mismatch\r\n");
    EXPECT_EQ(bench.files.open_files(), 0);
}

TEST_F(AuditHostTest, ReportsADiskThatRefusesAtAnyStepAndNeverCallsItOk) {
    for (const FileStep step :
         {FileStep::Open, FileStep::Write, FileStep::Close, FileStep::CreateFolder}) {
        Bench fresh;
        fresh.network.hosts["PC1"] = three_records();
        const bool folder = step == FileStep::CreateFolder;
        fresh.files.fail_next(step, folder ? "/app/Data" : kSecurity, "Disk full");
        fresh.run([&](Console& console) { AuditHost(console, "PC1", "full", {}); });
        EXPECT_EQ(drawn(fresh, "AuditStat st1"),
                  "\nAuditStat: \"error\"\nst1: [Disk full - Audit error][][][][]\n")
            << static_cast<int>(step);
        EXPECT_EQ(fresh.files.names().find("Audit ok"), std::string::npos);
        EXPECT_EQ(fresh.files.open_files(), 0);
        EXPECT_FALSE(fresh.program.ended);
    }
}

TEST_F(AuditHostTest, ReportsAnErrorWhenTheOkCannotBeLogged) {
    bench.files.fail_next(FileStep::Write, kAuditLog, "Disk full");
    audit();
    EXPECT_EQ(drawn(bench, "AuditStat"), "\nAuditStat: \"error\"\n");
    EXPECT_FALSE(bench.program.ended);
}

TEST_F(AuditHostTest, MakesNoFileForAHostThatWouldLeadOutOfTheStore) {
    for (const char* name : {"..", "../../etc/x", "a/b", "a\\..\\b"}) {
        bench.run([&](Console& console) { AuditHost(console, name, "full", {}); });
        EXPECT_EQ(drawn(bench, "AuditStat"), "\nAuditStat: \"error\"\n") << name;
    }
    EXPECT_EQ(bench.files.names(), "/app/Logs/30-11-2004.log\n");
    EXPECT_EQ(bench.network.connects, 0);
}

// KEEP(archive-stamp-is-taken-anew)
TEST_F(AuditHostTest, FailsWhenTheMinuteChangesWhileItArchives) {
    fill_old_files();
    auto& settings = bench.console.Form3;
    settings->choose(settings->optMove);
    bench.files.make_folders("/app/Archive/PC1_30-11-04-23-59");
    // The audit log's name and the test of the folder take one moment each.
    bench.clock.later_moments = {bench.clock.moment, {.date = {2004, 12, 1}, .time = {0, 0, 0}}};
    audit();
    EXPECT_EQ(drawn(bench, "AuditStat"), "\nAuditStat: \"error\"\n");
    EXPECT_EQ(bench.files.bytes(kSystem), "old\r\n");
}

TEST_F(AuditHostTest, NeedsTheArchiveFolderToBeThere) {
    fill_old_files();
    auto& settings = bench.console.Form3;
    settings->choose(settings->optMove);
    settings->txtArchivePath.text = "/elsewhere\\";
    audit();
    EXPECT_EQ(drawn(bench, "AuditStat"), "\nAuditStat: \"error\"\n");
    EXPECT_EQ(bench.files.bytes(kSystem), "old\r\n");
}

// KEEP(specific-date-couples-to-the-dialog)
TEST(EventQuery, ReadsTheTickFromTheDialogWhoeverAsks) {
    Bench bench;
    EXPECT_EQ(event_query(bench.console, "full"), "SELECT * FROM Win32_NTLogEvent");
    EXPECT_EQ(event_query(bench.console, "11/30/2004"),
              "Select * from Win32_NTLogEvent Where TimeWritten >= '20041130000000.000000+060'");
    bench.console.Form4->chkSpecificDate.value = 1;
    EXPECT_EQ(event_query(bench.console, "11/30/2004"),
              "Select * from Win32_NTLogEvent Where TimeWritten >= '20041130000000.000000+060' "
              "and TimeWritten < '20041201000000.000000+060'");
    bench.clock.minutes_ahead = -570;
    EXPECT_NE(event_query(bench.console, "2/29/2024").find("20240301000000.000000-570"),
              std::string::npos);
    for (const char* kind : {"Full", "", "2/30/2024", "30.11.2004", "11/30/2004 "})
        EXPECT_THROW(event_query(bench.console, kind), RuntimeError) << kind;
}

}  // namespace
}  // namespace tessarine
