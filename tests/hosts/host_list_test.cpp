#include "hosts/host_list.h"

#include <gtest/gtest.h>

#include "audit/custom_audit.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"
#include "hosts/add_host_dialog.h"
#include "viewer/filtered_redisplay.h"
#include "viewer/host_loading.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

void press(Rig& rig, MouseButton button) {
    rig.run([button](Console& console) { press_on_host_list(console, {.button = button}); });
}

TEST(HostList, MenuOpensByTheRightButtonOnAFilledList) {
    Rig rig;
    press(rig, MouseButton::Right);
    press(rig, MouseButton::Left);
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [List Empty. Enumerate or Load hosts][][][][]\n");
    rig.list_hosts({"PC1", "PC2", "PC3"});
    press(rig, MouseButton::Left);
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [][][][][]\n");
    EXPECT_TRUE(rig.windows.menus.empty());

    const std::pair<std::vector<int>, bool> selections[] = {
        {{1, 3}, false}, {{2}, true}, {{1, 2, 3}, false}, {{}, true}};
    for (const auto& [rows, graph] : selections) {
        Rig::select(rig.console.Form1.ListView1, rows);
        press(rig, MouseButton::Right);
        EXPECT_EQ(rig.console.Form1.graphicalview.enabled, graph) << rows.size();
    }
    EXPECT_EQ(rig.windows.menus, std::vector<std::string>(4, "MyMenu"));
}

TEST(HostList, RemovalLeavesTheOthersInTheirOrder) {
    Rig rig;
    rig.list_hosts({"A", "B", "C", "D", "E", "F"});
    Rig::select(rig.console.Form1.ListView1, {1, 4, 5});
    rig.run(removehost);
    EXPECT_EQ(drawn(rig, "ListView1"), "\nListView1:\n  1|B|-\n  1|C|-\n  >1|F|-\n");
    rig.run(removehost);
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 3);
}

// A click on free ground takes the mark away and leaves the selected item as it was.
TEST(HostList, CommandsOnOneHostTakeTheRowThatIsMarked) {
    const struct {
        std::vector<int> marked;
        std::string said, host;
    } cases[] = {{{}, "No host selected", ""}, {{1}, "", "PC1"}};
    for (const auto& each : cases) {
        Rig rig;
        MainForm& form = rig.console.Form1;
        rig.list_hosts({"PC1", "PC2"});
        Rig::select(form.ListView1, each.marked);
        const auto taken_by = [&](const auto& command, const auto& host) {
            form.ListView1.set_selected_item(2);
            form.st1.set_text(1, "");
            rig.run(command);
            EXPECT_EQ(form.st1.text(1), each.said);
            EXPECT_EQ(host(), each.host);
        };
        for (const char* host : {"PC1", "PC2"})
            rig.files.put(std::string("/app/Data/") + host + "_system.log",
                          std::string("error|d|t|s|1|u|") + host + "|m\r\n");
        std::string audited;
        rig.windows.when_shown(CustomAuditForm::kId, [&](Console& console) {
            audited = console.Form4->lblHostName.caption;
            console.Form4.unload();
        });
        taken_by(custaudit, [&] { return audited; });
        taken_by(
            [](Console& console) { click_type_box(console, EventLog::System); },
            [&] { return form.SystemList.count() == 0 ? "" : form.SystemList.row(1).sub_item(6); });
        taken_by(vieweventlogs,
                 [&] { return form.List1Index.text.empty() ? "" : "PC" + form.List1Index.text; });
    }
}

class DeleteLogs : public testing::Test {
  protected:
    DeleteLogs() {
        for (const char* file : {"PC1_system.log", "PC1_application.log", "PC1_security.log",
                                 "PC2_system.log", "PC3_system.log"})
            rig.files.put(std::string("/app/Data/") + file, "x");
        rig.files.set_read_only("/app/Data/PC1_application.log");
    }
    void delete_logs_of(const std::vector<std::string>& hosts, const std::vector<int>& selected) {
        rig.list_hosts(hosts);
        Rig::select(rig.console.Form1.ListView1, selected);
        rig.dialogs.answer_next(MessageAnswer::Yes);
        rig.run(dellogs);
    }

    Rig rig;
    const std::string all = rig.files.names();
};

// KEEP(delete-logs-reports-the-last-file)
TEST_F(DeleteLogs, DeletesFilesOfSelectedHostsAndTellsOfTheLast) {
    const fakes::StatusHistory history(rig.console.Form1.st1);
    delete_logs_of({"PC3", "PC1", "PC2"}, {2, 3});
    EXPECT_EQ(rig.files.names(), "/app/Data/PC3_system.log\n");
    EXPECT_EQ(history.lines,
              "1: Deleted logs of Host PC1\n1: Deleted logs of Host PC2\n1: Log not found..\n");
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 3);
    EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault);
    EXPECT_EQ(rig.dialogs.messages[0].text,
              "Are you sure want to delete the logs of the selected hosts?");
}

// KEEP(delete-logs-takes-names-as-they-stand)
TEST_F(DeleteLogs, NamesThatAreNoFileNamesFindNothing) {
    delete_logs_of({"\\\\PC1", "..", "x/../PC1", ""}, {1, 2, 3, 4});
    EXPECT_FALSE(rig.program.ended);
    EXPECT_NE(rig.files.names().find("PC1_system.log"), std::string::npos);
    EXPECT_EQ(rig.console.Form1.st1.text(1), "Log not found..");
}

TEST_F(DeleteLogs, NothingIsTouchedWithoutASelectionOrAYes) {
    const std::string before = rig.files.names();
    delete_logs_of({"PC1", "PC2"}, {});
    Rig::select(rig.console.Form1.ListView1, {1, 2});
    rig.dialogs.answer_next(MessageAnswer::No);
    rig.run(dellogs);
    EXPECT_EQ(rig.files.names(), before);
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [][][][][]\n");
}

TEST_F(DeleteLogs, AFileThatCannotBeDeletedRaisesItsError) {
    rig.files.fail_next(fakes::FileStep::Remove, "/app/Data/PC1_system.log", "Permission denied");
    rig.list_hosts({"PC1"});
    Rig::select(rig.console.Form1.ListView1, {1});
    rig.dialogs.answer_next(MessageAnswer::Yes);
    EXPECT_THROW(dellogs(rig.console), RuntimeError);
    EXPECT_EQ(rig.console.mouse_pointer, kPointerHourglass);
}

// KEEP(enter-adds-an-empty-host)
TEST(AddHost, ButtonTestsTheFieldAndEnterDoesNot) {
    Rig rig;
    rig.windows.when_shown(AddHostForm::kId, [](Console& console) {
        const auto type = [&](const char* name, auto* routine) {
            console.Form6->AddHost.text = name;
            routine(console);
            EXPECT_EQ(console.Form6->AddHost.text, "");
        };
        type("pc1.lab", add_typed_host);
        type("", add_typed_host);
        type("pc1.lab", add_typed_host_on_enter);
        type("", add_typed_host_on_enter);
        type("b\xFCro", add_typed_host_on_enter);
        EXPECT_TRUE(console.Form6->visible);
        console.Form6.unload();
    });
    rig.run(show_add_host);
    EXPECT_EQ(drawn(rig, "ListView1 st1"), R"(
ListView1:
  1|PC1.LAB|-
  1|PC1.LAB|-
  1||-
  1|BÜRO|-
st1: [][][][][]
)");
}

}  // namespace
}  // namespace tessarine
