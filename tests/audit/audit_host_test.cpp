#include "audit/audit_host.h"

#include <gtest/gtest.h>

#include <array>
#include <locale>
#include <string>

#include "audit/event_query.h"
#include "core/code_page.h"
#include "core/log_facts.h"
#include "fakes/drawn.h"
#include "fakes/environment.h"
#include "fakes/rig.h"
#include "viewer/filtered_redisplay.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::FileStep;
using fakes::HostEvent;
using fakes::Rig;
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
        rig.run([&](Console& console) { AuditHost(console, "PC1", kind, logs); });
    }
    void fill_old_files() {
        for (const char* path : {kSystem, kApplication, kSecurity}) rig.files.put(path, "old\r\n");
    }

    Rig rig;
    ScriptedHost& host = rig.network.hosts["PC1"] = three_records();
};

// What one machine has stored is shown as it is on any other.
TEST_F(AuditHostTest, WritesDatesInTheFormsOfTheMachineForEveryReader) {
    host.records = {HostEvent{.TimeGenerated = "20041103180705.000000+060"}};
    for (const auto& [locale, date, time] : {std::array{"de_DE.UTF-8", "03.11.2004", "18:07:05"},
                                             std::array{"en_US.UTF-8", "11/03/2004", "06:07:05 PM"},
                                             std::array{"en_GB.UTF-8", "03/11/2004", "18:07:05"},
                                             std::array{"ja_JP.UTF-8", "2004/11/03", "18:07:05"}}) {
        if (!fakes::has_locale(locale)) GTEST_SKIP() << locale << " is not installed";
        rig.console.regional = RegionalText(std::locale(locale));
        audit();
        const std::string stamp = std::string("|") + date + "|" + time + "|";
        EXPECT_EQ(rig.files.bytes(kSystem),
                  "information" + stamp + "Tcpip|4201|N/A|PC1|Ready.\r\n");
        const fakes::Environment zone("TZ", "Asia/Kolkata");
        rig.console.regional = RegionalText();
        rig.run([](Console& console) { ShowRecords(console, "PC1", "system"); });
        EXPECT_EQ(drawn(rig, "SystemList"),
                  "\nSystemList:\n  3|information" + stamp + "Tcpip|4201|N/A|PC1|Ready.\n");
    }
}

// KEEP(audit-empties-the-system-table)
TEST_F(AuditHostTest, WritesEachLogInTheHostsOrderAndDropsOthers) {
    for (const EventLog log : kEventLogs) table_of(rig.console.Form1, log).add_row("shown", 3);
    fakes::StatusHistory history(rig.console.Form1.st1);
    audit();
    EXPECT_EQ(drawn(rig, "SystemList ApplicationList SecurityList"),
              "\nSystemList:\nApplicationList:\n  3|shown\nSecurityList:\n  3|shown\n");
    EXPECT_EQ(rig.files.bytes(kSystem),
              "information|11/30/2004|11:59:59 PM|Tcpip|4201|N/A|PC1|Ready.\r\n");
    EXPECT_EQ(rig.files.bytes(kApplication),
              "Fehler|11/30/2004|11:59:59 PM|Tcpip|4201|N/A|PC1|a~b\r\n");
    EXPECT_EQ(rig.files.bytes(kSecurity),
              "audit success|11/30/2004|11:59:59 PM|Tcpip|4201|PC1\\eva|PC1|Ready.\r\n");
    EXPECT_EQ(rig.files.bytes(kAuditLog), "11/30/2004 11:59:59 PM PC1 Audit ok\r\n");
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
    EXPECT_EQ(drawn(rig, "AuditStat pbar1"), "\nAuditStat: \"ok\"\npbar1: 0/4 hidden\n");
    EXPECT_EQ(rig.network.log,
              "connect PC1 root\\cimv2\nauthentication 6\nimpersonation 3\n"
              "query SELECT * FROM Win32_NTLogEvent\n");
    EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault);
}

TEST_F(AuditHostTest, UsesTheAlternateCredentialsOnlyWhenTheyAreOn) {
    audit();
    EXPECT_FALSE(rig.network.credentials.has_value());
    rig.console.Form3->Check1.value = 1;
    rig.console.Form3->TxtUsername.text = "";
    rig.console.Form3->TxtPassword.text = "secret";
    audit();
    ASSERT_TRUE(rig.network.credentials.has_value());
    EXPECT_EQ(rig.network.credentials->user, "");
    EXPECT_EQ(rig.network.credentials->password, "secret");
}

TEST_F(AuditHostTest, AppendsOverwritesOrMovesWhatIsThere) {
    auto& settings = rig.console.Form3;
    settings->choose(settings->optAppend);
    audit();
    const std::string once = rig.files.bytes(kSystem);
    audit();
    EXPECT_EQ(rig.files.bytes(kSystem), once + once);

    settings->choose(settings->optMove);
    audit();
    EXPECT_EQ(rig.files.bytes(kSystem), once);
    const char* copy = "/app/Archive/PC1_30-11-04-23-59/PC1_system.log";
    EXPECT_EQ(rig.files.bytes(copy), once + once);
    // Within the same minute.
    audit();
    EXPECT_EQ(drawn(rig, "AuditStat"), "\nAuditStat: \"ok\"\n");
    EXPECT_EQ(rig.files.bytes(copy), once);

    settings->choose(settings->optOverwrite);
    audit();
    EXPECT_EQ(rig.files.bytes(kSystem), once);
}

TEST_F(AuditHostTest, GoesOnWithAStoreFromASystemWhereCaseMakesNoDifference) {
    for (const char* path : {"/app/DATA/pc1_System.log", "/app/DATA/pc1_Application.LOG",
                             "/app/DATA/PC1_SECURITY.LOG", "/app/logs/30-11-2004.LOG"})
        rig.files.put(path, "old\r\n");
    rig.files.make_folders("/app/archive/pc1_30-11-04-23-59");
    const std::string before = rig.files.names();
    auto& settings = rig.console.Form3;
    settings->choose(settings->optAppend);
    audit();
    EXPECT_EQ(rig.files.names(), before);
    EXPECT_TRUE(rig.files.bytes("/app/DATA/pc1_System.log").starts_with("old\r\ninformation|"));
    settings->choose(settings->optMove);
    audit();
    EXPECT_TRUE(rig.files.bytes("/app/archive/pc1_30-11-04-23-59/PC1_system.log")
                    .starts_with("old\r\ninformation|"));
}

// KEEP(every-log-file-is-opened)
TEST_F(AuditHostTest, EmptiesTheLogsThatAreNotSelectedToo) {
    fill_old_files();
    audit("full", {.SelSystem = true, .SelApplication = false, .SelSecurity = false});
    EXPECT_NE(rig.files.bytes(kSystem), "");
    EXPECT_EQ(rig.files.bytes(kApplication), "");
    EXPECT_EQ(rig.files.bytes(kSecurity), "");
}

TEST_F(AuditHostTest, LeavesTheFilesOfAHostWithoutRecordsAlone) {
    fill_old_files();
    host.records.clear();
    audit();
    EXPECT_EQ(rig.files.bytes(kSystem), "old\r\n");
    EXPECT_EQ(rig.files.bytes(kAuditLog),
              "11/30/2004 11:59:59 PM PC1 Audit ok - Zero Records Returned From The Client\r\n");
    EXPECT_EQ(drawn(rig, "AuditStat st1"), "\nAuditStat: \"ok\"\nst1: [Zero records][][][][]\n");
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
        rig.files.put(kAuditLog, "");
        host = three_records();
        each.break_it(host);
        audit();
        EXPECT_EQ(rig.files.bytes(kSystem), "old\r\n");
        EXPECT_EQ(rig.files.bytes(kAuditLog),
                  std::string("11/30/2004 11:59:59 PM PC1 Audit Error --") + each.cause + "\r\n");
        EXPECT_EQ(drawn(rig, "AuditStat st1 pbar1"),
                  std::string("\nAuditStat: \"error\"\nst1: [") + each.cause +
                      " - Audit error][][][][]\npbar1: 0/100 hidden\n");
        EXPECT_EQ(rig.files.open_files(), 0);
    }
}

TEST_F(AuditHostTest, LeavesTheLogsThatAnotherAuditWritesAlone) {
    SettingsForm& settings = rig.console.Form3.get();
    for (OptionButton* option : {&settings.optAppend, &settings.optOverwrite, &settings.optMove}) {
        fill_old_files();
        settings.choose(*option);
        const auto other = rig.files.lock(kSystem, {});
        audit();
        EXPECT_EQ(rig.files.bytes(kSystem), "old\r\n");
        EXPECT_EQ(rig.files.bytes(kSecurity), "old\r\n");
        EXPECT_EQ(drawn(rig, "AuditStat st1"),
                  "\nAuditStat: \"error\"\nst1: [Another audit is writing the logs of PC1 - Audit "
                  "error][][][][]\n");
    }
}

TEST_F(AuditHostTest, KeepsWhatWasWrittenWhenTheSecondWalkFails) {
    host.records[1].TimeGenerated = "no time";
    audit();
    EXPECT_NE(rig.files.bytes(kSystem), "");
    EXPECT_EQ(rig.files.bytes(kAuditLog),
              "11/30/2004 11:59:59 PM PC1 Audit Error --Type mismatch\r\n");
    EXPECT_EQ(rig.files.open_files(), 0);
}

TEST_F(AuditHostTest, ReportsADiskThatRefusesAtAnyStepAndNeverCallsItOk) {
    for (const FileStep step :
         {FileStep::Open, FileStep::Write, FileStep::Close, FileStep::CreateFolder}) {
        Rig fresh;
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
    rig.files.fail_next(FileStep::Write, kAuditLog, "Disk full");
    audit();
    EXPECT_EQ(drawn(rig, "AuditStat"), "\nAuditStat: \"error\"\n");
    EXPECT_FALSE(rig.program.ended);
}

TEST_F(AuditHostTest, MakesNoFileForAHostThatWouldLeadOutOfTheStore) {
    for (const char* name : {"..", "../../etc/x", "a/b", "a\\..\\b"}) {
        rig.run([&](Console& console) { AuditHost(console, name, "full", {}); });
        EXPECT_EQ(drawn(rig, "AuditStat"), "\nAuditStat: \"error\"\n") << name;
    }
    EXPECT_EQ(rig.files.names(), "/app/Logs/30-11-2004.log\n");
    EXPECT_EQ(rig.network.connects, 0);
}

// KEEP(archive-stamp-is-taken-anew)
TEST_F(AuditHostTest, FailsWhenTheMinuteChangesWhileItArchives) {
    fill_old_files();
    auto& settings = rig.console.Form3;
    settings->choose(settings->optMove);
    rig.files.make_folders("/app/Archive/PC1_30-11-04-23-59");
    // The audit log's name and the test of the folder take one moment each.
    rig.clock.later_moments = {rig.clock.moment, {.date = {2004, 12, 1}, .time = {0, 0, 0}}};
    audit();
    EXPECT_EQ(drawn(rig, "AuditStat"), "\nAuditStat: \"error\"\n");
    EXPECT_EQ(rig.files.bytes(kSystem), "old\r\n");
}

TEST_F(AuditHostTest, NeedsTheArchiveFolderToBeThere) {
    fill_old_files();
    auto& settings = rig.console.Form3;
    settings->choose(settings->optMove);
    settings->txtArchivePath.text = "/elsewhere\\";
    audit();
    EXPECT_EQ(drawn(rig, "AuditStat"), "\nAuditStat: \"error\"\n");
    EXPECT_EQ(rig.files.bytes(kSystem), "old\r\n");
}

// KEEP(specific-date-couples-to-the-dialog)
TEST(EventQuery, ReadsTheTickFromTheDialogWhoeverAsks) {
    Rig rig;
    EXPECT_EQ(event_query(rig.console, "full"), "SELECT * FROM Win32_NTLogEvent");
    EXPECT_EQ(event_query(rig.console, "11/30/2004"),
              "Select * from Win32_NTLogEvent Where TimeWritten >= '20041130000000.000000+060'");
    rig.console.Form4->chkSpecificDate.value = 1;
    EXPECT_EQ(event_query(rig.console, "11/30/2004"),
              "Select * from Win32_NTLogEvent Where TimeWritten >= '20041130000000.000000+060' "
              "and TimeWritten < '20041201000000.000000+060'");
    for (const auto& [ahead, digits] : {std::pair{-570, "-570"}, {0, "+000"}, {5, "+005"}}) {
        rig.clock.minutes_ahead = ahead;
        EXPECT_NE(event_query(rig.console, "2/29/2024")
                      .find(std::string("20240301000000.000000") + digits),
                  std::string::npos);
    }
    for (const char* kind : {"Full", "", "2/30/2024", "30.11.2004", "11/30/2004 "})
        EXPECT_THROW(event_query(rig.console, kind), RuntimeError) << kind;
}

}  // namespace
}  // namespace tessarine
