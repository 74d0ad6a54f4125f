#include "faults/scenarios.h"

#include <gtest/gtest.h>

#include "analysis/overall_analysis.h"
#include "audit/audit_host.h"
#include "chrome/start_up.h"
#include "hosts/host_list_files.h"
#include "patterns/code_lists.h"
#include "report/html_page.h"
#include "schedule/scheduled_audit.h"
#include "search/search.h"
#include "viewer/host_loading.h"

namespace tessarine::faults {
namespace {

using fakes::Rig;

constexpr const char* kLogs[] = {"_system.log", "_application.log", "_security.log"};
const std::string kOld = "information|1/1/2004|1:00:00 AM|old|1|N/A|PC1|old\r\n";
const std::string kStored = kOld + "error|1/1/2004|1:00:00 AM|disk|4625|N/A|PC1|disk failed\r\n" +
                            "audit success|1/1/2004|1:00:00 AM|a|7036|N/A|PC1|m\r\nshort|line\r\n";
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

void appended_is_kept(Rig& rig) {
    for (const char* log : kLogs)
        EXPECT_TRUE(rig.files.bytes(log_of("/app/Data", log)).starts_with(kOld)) << log;
}

void moved_is_kept(Rig& rig) {
    for (const char* log : kLogs)
        EXPECT_TRUE(is_old(rig, log_of("/app/Data", log)) ||
                    is_old(rig, log_of("/app/Archive/PC1_30-11-04-23-59", log)))
            << log;
}

void overwritten_is_there(Rig& rig) {
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
    EXPECT_EQ(rig.program.ended, rig.dialogs.messages.size() == 1u);
    const std::string report = "/app/Logs/30-11-2004_AutoAudit.log";
    const bool is_whole =
        has(rig, report) && rig.files.bytes(report).starts_with("#############\r\n \r\nPC1  - ");
    EXPECT_TRUE(rig.mail.sent.empty() || is_whole);
}

void prepare_page(Rig& rig) {
    ListControl& list = rig.console.Form1.SystemList;
    ListControl::Row row = list.add_row("error", 4);
    for (int i = 1; i <= 7; ++i) row.add_sub_item("a text that doesn't fit into a short one");
}

// A store to be read, with all that a reader has to go into.
void prepare_store(Rig& rig) {
    for (const char* log : kLogs) rig.files.put(log_of("/app/Data", log), kStored);
    rig.files.put("/hosts.txt", "pc1\r\nsrv02\r\n");
    prepare_lists(rig);
    MainForm& form = rig.console.Form1;
    for (CheckBox* box :
         {&form.Check1, &form.Check2, &form.Check3, &form.Check4, &form.Check5, &form.Check6})
        box->value = 1;
    form.highlightpatt.checked = form.hideignore.checked = true;
    form.TxtSearch.text = "disk";
}

void store_is_kept(Rig& rig) {
    for (const char* log : kLogs) EXPECT_EQ(rig.files.bytes(log_of("/app/Data", log)), kStored);
    lists_are(kCodes)(rig);
}

void nothing_to_keep(Rig&) {}

const Scenario kScenarios[] = {
    {.name = "AuditThatAppends",
     .prepare = [](Rig& rig) { prepare_audit(rig, &SettingsForm::optAppend); },
     .act = audit,
     .kept = appended_is_kept,
     .told = check_outcome},
    {.name = "AuditThatMoves",
     .prepare = [](Rig& rig) { prepare_audit(rig, &SettingsForm::optMove); },
     .act = audit,
     .kept = moved_is_kept,
     .told = check_outcome},
    {.name = "AuditThatOverwrites",
     .prepare = [](Rig& rig) { prepare_audit(rig, &SettingsForm::optOverwrite); },
     .act = audit,
     .kept = overwritten_is_there,
     .told = check_outcome},
    {.name = "AdditionToAList",
     .prepare = prepare_lists,
     .act = add_alert_pattern,
     .kept = lists_are(kCodes + "4625\r\n\r\n")},
    {.name = "RemovalFromAList",
     .prepare = prepare_lists,
     .act = remove_alert_pattern,
     .kept = lists_are("7036\r\n\r\n\r\n")},
    {.name = "Page",
     .prepare = prepare_page,
     .act = [](Console& console) { ExportToHtml(console, console.Form1.SystemList); },
     .kept = nothing_to_keep},
    {.name = "ScheduledRun",
     .prepare = prepare_run,
     .act = AutoAudit,
     .kept = appended_is_kept,
     .told = check_run},
    {.name = "Start", .prepare = prepare_store, .act = start_up, .kept = store_is_kept},
    {.name = "HostList",
     .prepare =
         [](Rig& rig) {
             prepare_store(rig);
             rig.dialogs.choose_file_next("/hosts.txt");
             rig.dialogs.choose_file_next("/exported");
         },
     .act =
         [](Console& console) {
             loadfrmlist(console);
             exporthostlist(console);
         },
     .kept = store_is_kept},
    {.name = "View",
     .prepare = prepare_store,
     .act = [](Console& console) { ViewEventLog(console, "PC1"); },
     .kept = store_is_kept},
    {.name = "Search", .prepare = prepare_store, .act = Search, .kept = store_is_kept},
    {.name = "Analysis",
     .prepare = prepare_store,
     .act = run_overall_analysis,
     .kept = store_is_kept},
};

}  // namespace

std::span<const Scenario> scenarios() {
    return kScenarios;
}

}  // namespace tessarine::faults
