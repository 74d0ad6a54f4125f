// What the console keeps when a call of the file system fails: each in turn, once and for good.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/events.h"
#include "audit/audit_host.h"
#include "fakes/rig.h"
#include "hosts/host_list_files.h"
#include "patterns/code_lists.h"
#include "report/html_page.h"
#include "schedule/scheduled_audit.h"

namespace tessarine {
namespace {

using fakes::Rig;

constexpr const char* kLogs[] = {"_system.log", "_application.log", "_security.log"};
const std::string kOld = "information|1/1/2004|1:00:00 AM|old|1|N/A|PC1|old\r\n";
const std::string kCodes = "4625\r\n\r\n7036\r\n\r\n";

std::string log_of(const char* folder, const char* log) {
    return std::string(folder) + "/PC1" + log;
}

bool has(Rig& rig, const std::string& path) {
    return rig.files.names().find(path + "\n") != std::string::npos;
}

bool is_old(Rig& rig, const std::string& path) {
    return has(rig, path) && rig.files.bytes(path) == kOld;
}

// One thing that a user does, and what is true afterwards whatever has failed.
struct Scenario {
    const char* name;
    std::function<void(Rig&)> prepare;
    std::function<void(Console&)> act;
    std::function<void(Rig&)> check;
};

void audit(Console& console) {
    AuditHost(console, "PC1", "full", {});
}

void prepare_audit(Rig& rig, OptionButton SettingsForm::*option) {
    for (const char* log : kLogs) rig.files.put(log_of("/app/Data", log), kOld);
    rig.files.make_folders("/app/Logs");
    rig.files.make_folders("/app/Archive");
    rig.network.hosts["PC1"].records = {{}, {.LogFile = "Application"}, {.LogFile = "Security"}};
    SettingsForm& settings = rig.console.Form3.get();
    settings.choose(settings.*option);
}

// The outcome in the window is the one in the audit log, of which each audit has one line.
void check_outcome(Rig& rig) {
    const std::string path = "/app/Logs/30-11-2004.log";
    const std::string lines = has(rig, path) ? rig.files.bytes(path) : "";
    const bool ok = rig.console.Form1.AuditStat.text == "ok";
    EXPECT_EQ(lines.find("Audit ok") != std::string::npos, ok) << lines;
    EXPECT_FALSE(ok && lines.find("Audit Error") != std::string::npos) << lines;
    EXPECT_FALSE(rig.program.ended);
}

void check_appended(Rig& rig) {
    check_outcome(rig);
    for (const char* log : kLogs)
        EXPECT_TRUE(rig.files.bytes(log_of("/app/Data", log)).starts_with(kOld)) << log;
}

void check_moved(Rig& rig) {
    check_outcome(rig);
    for (const char* log : kLogs)
        EXPECT_TRUE(is_old(rig, log_of("/app/Data", log)) ||
                    is_old(rig, log_of("/app/Archive/PC1_30-11-04-23-59", log)))
            << log;
}

void check_overwritten(Rig& rig) {
    check_outcome(rig);
    for (const char* log : kLogs) EXPECT_TRUE(has(rig, log_of("/app/Data", log)));
}

void prepare_lists(Rig& rig) {
    for (const char* path : {"/app/alertpatterns.txt", "/app/ignorelist.txt"})
        rig.files.put(path, kCodes);
    rig.run(LoadAlertPatterns);
    rig.console.Form1.TxtAlert.text = "4625";
}

// The list is the old or the new one, and the other list is as it was.
std::function<void(Rig&)> lists_are(const std::string& changed) {
    return [changed](Rig& rig) {
        const std::string list = rig.files.bytes("/app/alertpatterns.txt");
        EXPECT_TRUE(list == kCodes || list == changed) << list;
        EXPECT_EQ(rig.files.bytes("/app/ignorelist.txt"), kCodes);
    };
}

void prepare_run(Rig& rig) {
    prepare_audit(rig, &SettingsForm::optAppend);
    rig.files.put("/hosts.txt", "pc1\r\n");
    rig.console.Form3->txtHosts.text = "/hosts.txt";
    rig.console.Form3->Check6.value = 1;
    rig.probe.answers["PC1"] = fakes::kConnects;
    rig.console.Form1.AlertList.add_row("4201", 0);
}

// A run that comes to its end has mailed a report that is on disk whole; one that fails ends the
// console with a message.
void check_run(Rig& rig) {
    for (const char* log : kLogs)
        EXPECT_TRUE(rig.files.bytes(log_of("/app/Data", log)).starts_with(kOld)) << log;
    EXPECT_EQ(rig.program.ended, rig.dialogs.messages.size() == 1u);
    const std::string report = "/app/Logs/30-11-2004_AutoAudit.log";
    const bool is_whole =
        has(rig, report) && rig.files.bytes(report).starts_with("#############\r\n \r\nPC1  - ");
    EXPECT_TRUE(rig.mail.sent.empty() || is_whole);
}

void prepare_page(Rig& rig) {
    rig.console.Form1.SystemList.add_row("row", 0);
}

const Scenario kScenarios[] = {
    {"AuditThatAppends", [](Rig& rig) { prepare_audit(rig, &SettingsForm::optAppend); }, audit,
     check_appended},
    {"AuditThatMoves", [](Rig& rig) { prepare_audit(rig, &SettingsForm::optMove); }, audit,
     check_moved},
    {"AuditThatOverwrites", [](Rig& rig) { prepare_audit(rig, &SettingsForm::optOverwrite); },
     audit, check_overwritten},
    {"AdditionToAList", prepare_lists, add_alert_pattern, lists_are(kCodes + "4625\r\n\r\n")},
    {"RemovalFromAList", prepare_lists, remove_alert_pattern, lists_are("7036\r\n\r\n\r\n")},
    {"LoadingOfTheLists", prepare_lists,
     [](Console& console) {
         LoadAlertPatterns(console);
         LoadIgnoreList(console);
     },
     lists_are(kCodes)},
    {"Page", prepare_page,
     [](Console& console) { ExportToHtml(console, console.Form1.SystemList); }, [](Rig&) {}},
    {"ScheduledRun", prepare_run, AutoAudit, check_run},
};

// Runs the scenario with its call number `number` failing; false when it has fewer.
bool run_with_failure(const Scenario& scenario, int number, fakes::Failing failing) {
    Rig rig{control_events()};
    scenario.prepare(rig);
    rig.files.fail_call(number, failing);
    rig.run(scenario.act);
    const bool failed = rig.files.has_failed();
    rig.files.fail_call(0, failing);
    scenario.check(rig);
    EXPECT_EQ(rig.files.open_files(), 0);
    EXPECT_EQ(rig.files.held_locks(), 0);
    return failed;
}

class EveryCallFails : public testing::TestWithParam<Scenario> {};

TEST_P(EveryCallFails, AndNothingThatWasThereIsLost) {
    for (const auto failing : {fakes::Failing::Once, fakes::Failing::FromThenOn}) {
        int number = 1;
        while (run_with_failure(GetParam(), number, failing) && !HasFailure()) ++number;
        ASSERT_FALSE(HasFailure()) << "call " << number;
        EXPECT_GT(number, 1) << "no call was made";
    }
}

INSTANTIATE_TEST_SUITE_P(Of, EveryCallFails, testing::ValuesIn(kScenarios),
                         [](const auto& tested) { return std::string(tested.param.name); });

// An audit that has begun has its line in the audit log.
TEST(FullDisk, KeepsWhatWasThereWhereverItFillsUp) {
    constexpr std::size_t kReserved = 2000;
    for (const Scenario& scenario : kScenarios)
        for (std::size_t room = 0; room <= kReserved + 800; room += 25) {
            Rig rig{control_events()};
            scenario.prepare(rig);
            rig.files.leave_room_for(room);
            rig.run(scenario.act);
            scenario.check(rig);
            const std::string log = "/app/Logs/30-11-2004.log";
            if (room >= kReserved && has(rig, log)) {
                EXPECT_EQ(rig.files.bytes(log).find(" PC1 Audit "), 22U);
            }
            ASSERT_FALSE(testing::Test::HasFailure()) << scenario.name << " with " << room;
        }
}

}  // namespace
}  // namespace tessarine
