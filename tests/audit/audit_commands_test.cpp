#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "app/events.h"
#include "audit/connection_check.h"
#include "audit/custom_audit.h"
#include "audit/full_audit.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

class AuditCommands : public testing::Test {
  protected:
    AuditCommands() {
        for (const char* name : {"PC1", "PC2", "PC3"}) {
            rig.network.hosts[name].records = {{}};
            rig.probe.answers[name] = fakes::kConnects;
        }
        rig.list_hosts({"PC1", "PC2", "PC3"});
    }

    // What the user does in the dialog before pressing OK.
    void on_custom_audit(std::function<void(CustomAuditForm&)> choose = [](CustomAuditForm&) {}) {
        rig.windows.when_shown(CustomAuditForm::kId, [choose](Console& console) {
            choose(console.Form4.get());
            run_event(console, run_custom_audit);
        });
    }

    Rig rig{control_events()};
};

TEST_F(AuditCommands, TheTestOfAHostWaitsThreeSecondsAndTellsTheLastState) {
    const struct {
        fakes::ProbeAnswer answer;
        const char* verdict;
    } cases[] = {{fakes::kConnects, "hostok"},
                 {fakes::kRefuses, "hostdown"},
                 {fakes::kSilent, "hostdown"},
                 {fakes::kConnectsAndResets, "hostdown"},
                 {{.connected_after = 3100}, "hostdown"}};
    int start = 0;
    for (const auto& each : cases) {
        rig.probe.answers["PC1"] = each.answer;
        rig.run([](Console& console) { test_host(console, "PC1"); });
        EXPECT_EQ(rig.console.Form1.lblReturn.caption, each.verdict);
        EXPECT_EQ(rig.timeline.now() - start, 3000);
        EXPECT_FALSE(rig.console.ConCheck.loaded());
        EXPECT_EQ(rig.timeline.next_moment(), std::nullopt) << "the connection is still open";
        start = rig.timeline.now();
    }
    EXPECT_EQ(rig.probe.attempts.front(), "PC1:135");
}

TEST_F(AuditCommands, AFullAuditMarksEveryHostAndNeverStops) {
    rig.probe.answers["PC1"] = fakes::kRefuses;
    rig.network.hosts["PC2"].connect_error = "Access is denied";
    rig.run(runFullauditAllhost);
    EXPECT_EQ(drawn(rig, "ListView1"), R"(
ListView1:
  1|PC1|[8]-
  1|PC2|[8]-
  1|PC3|[7]-
)");
    EXPECT_EQ(rig.network.connects, 2);
}

TEST_F(AuditCommands, AFullAuditOfTheSelectionSkipsTheOthers) {
    Rig::select(rig.console.Form1.ListView1, {1, 3});
    rig.run(fullaudit);
    EXPECT_EQ(drawn(rig, "ListView1"), R"(
ListView1:
  *1|PC1|[7]-
  1|PC2|-
  >*1|PC3|[7]-
)");
}

// KEEP(custom-audit-takes-names-as-they-stand)
TEST_F(AuditCommands, OnlyAFullAuditRemovesLeadingBackslashes) {
    rig.list_hosts({"\\\\PC1"});
    rig.run(runFullauditAllhost);
    EXPECT_EQ(rig.probe.attempts.back(), "PC1:135");
    EXPECT_NE(rig.files.names().find("/app/Data/PC1_system.log"), std::string::npos);
    on_custom_audit();
    rig.run(runcustomforallhosts);
    EXPECT_EQ(rig.probe.attempts.back(), "\\\\PC1:135");
}

// KEEP(custom-audit-of-a-down-host-leaves-no-trace)
TEST_F(AuditCommands, ACustomAuditOfAllSelectsEachRowAndPassesOverDownHosts) {
    rig.probe.answers["PC2"] = fakes::kSilent;
    on_custom_audit([](CustomAuditForm& form) {
        form.MonthView1.value = {2004, 1, 2};
        form.ChkSys.value = 0;
    });
    rig.run(runcustomforallhosts);
    EXPECT_EQ(drawn(rig, "ListView1 AuditStat st1"), R"(
ListView1:
  *1|PC1|[7]-
  *1|PC2|-
  *1|PC3|[7]-
AuditStat: "ok"
st1: [][][][3/3][]
)");
    EXPECT_NE(rig.network.query.find("TimeWritten >= '20040102"), std::string::npos);
    EXPECT_EQ(rig.files.bytes("/app/Data/PC1_system.log"), "");
    EXPECT_FALSE(rig.console.Form4.loaded());
}

// KEEP(selected-hosts-leave-the-dialog-loaded)
TEST_F(AuditCommands, ACustomAuditOfSelectedHostsLeavesTheTickBehind) {
    Rig::select(rig.console.Form1.ListView1, {1, 2});
    on_custom_audit([](CustomAuditForm& form) { form.chkSpecificDate.value = 1; });
    rig.run(custaudit);
    EXPECT_EQ(drawn(rig, "ListView1 st1"), R"(
ListView1:
  *1|PC1|[7]-
  >*1|PC2|[7]-
  1|PC3|-
st1: [][][][2/3][]
)");
    ASSERT_TRUE(rig.console.Form4.loaded());
    EXPECT_FALSE(rig.console.Form4->visible);
    EXPECT_EQ(rig.console.Form4->chkSpecificDate.value, 1);
}

TEST_F(AuditCommands, ACustomAuditOfOneHostGoesByItsName) {
    Rig::select(rig.console.Form1.ListView1, {2});
    std::string caption;
    on_custom_audit([&](CustomAuditForm& form) { caption = form.lblHostName.caption; });
    rig.run(custaudit);
    EXPECT_EQ(caption, "PC2");
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [][][][0/3][]\n");
    EXPECT_EQ(rig.network.connects, 1);
    EXPECT_FALSE(rig.console.Form4.loaded());
}

TEST_F(AuditCommands, TheCustomDialogReadsTheChoiceBack) {
    std::string said;
    rig.windows.when_shown(CustomAuditForm::kId, [&](Console& console) {
        CustomAuditForm& form = console.Form4.get();
        said += form.Label1.caption + "\n";
        form.MonthView1.value = {2004, 2, 3};
        run_event(console, choose_audit_date);
        said += form.Label1.caption + "\n";
        form.chkSpecificDate.value = 1;
        run_event(console, click_specific_date);
        said += form.Label1.caption + "\n";
        for (CheckBox* box : {&form.ChkSys, &form.ChkApp, &form.ChkSec}) box->value = 0;
        run_event(console, run_custom_audit);
        said += form.visible ? "open" : "closed";
        console.Form4.unload();
    });
    rig.run(runcustomforallhosts);
    EXPECT_EQ(said,
              "Perform audit from: 11/30/2004 onwards\nPerform audit from: 2/3/2004 onwards\n"
              "Perform audit for: 2/3/2004\nopen");
    ASSERT_EQ(rig.dialogs.messages.size(), 1u);
    EXPECT_EQ(rig.dialogs.messages[0].text, "select atleast one log to audit");
    EXPECT_EQ(rig.network.connects, 0);
}

using Command = void (*)(Console&);
enum class ClosedIn { Reading, Check };

class ClosedAudit : public AuditCommands,
                    public testing::WithParamInterface<std::tuple<Command, ClosedIn>> {};

// The host that is being read is read to its end, one that is being tested isn't read at all.
TEST_P(ClosedAudit, BeginsNoFurtherHostAndEndsTheProgram) {
    const auto [command, closed_in] = GetParam();
    Rig::select(rig.console.Form1.ListView1, {1, 2, 3});
    on_custom_audit();
    auto& first = rig.network.hosts["PC1"];
    first.records = {{}, {}};
    if (closed_in == ClosedIn::Reading)
        first.before_record = [&](int, int) { end_after_event(rig.console); };
    else
        rig.windows.when_shown(ConnectionCheckForm::kId, [](Console& console) {
            if (console.ConCheck->lblHostName.caption == "PC2") end_after_event(console);
        });
    rig.run(command);
    std::string results;
    for (int row = 1; row <= 3; ++row)
        results += std::to_string(rig.console.Form1.ListView1.row(row).report_icon(1));
    EXPECT_EQ(results, "700");
    EXPECT_EQ(rig.probe.attempts.size(), closed_in == ClosedIn::Reading ? 1U : 2U);
    EXPECT_EQ(rig.network.connects, 1);
    const std::string written = rig.files.bytes("/app/Data/PC1_system.log");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 2);
    EXPECT_EQ(rig.console.Form1.st1.text(5), "Closing when done ...");
    EXPECT_TRUE(rig.program.ended);
    EXPECT_FALSE(rig.console.Form4.loaded());
}

INSTANTIATE_TEST_SUITE_P(Commands, ClosedAudit,
                         testing::Combine(testing::Values(fullaudit, runFullauditAllhost, custaudit,
                                                          runcustomforallhosts),
                                          testing::Values(ClosedIn::Reading, ClosedIn::Check)));

}  // namespace
}  // namespace tessarine
