#include "hosts/host_list.h"

#include <gtest/gtest.h>

#include "fakes/bench.h"
#include "fakes/drawn.h"
#include "hosts/add_host_dialog.h"

namespace tessarine {
namespace {

using fakes::Bench;
using fakes::drawn;

void press(Bench& bench, int button) {
    bench.run([button](Console& console) { press_on_host_list(console, button); });
}

TEST(HostList, MenuOpensByTheRightButtonOnAFilledList) {
    Bench bench;
    press(bench, 2);
    press(bench, 1);
    EXPECT_EQ(drawn(bench, "st1"), "\nst1: [List Empty. Enumerate or Load hosts][][][][]\n");
    bench.list_hosts({"PC1", "PC2", "PC3"});
    press(bench, 1);
    EXPECT_EQ(drawn(bench, "st1"), "\nst1: [][][][][]\n");
    EXPECT_TRUE(bench.windows.menus.empty());

    const std::pair<std::vector<int>, bool> selections[] = {
        {{1, 3}, false}, {{2}, true}, {{1, 2, 3}, false}, {{}, true}};
    for (const auto& [rows, graph] : selections) {
        Bench::select(bench.console.Form1.ListView1, rows);
        press(bench, 2);
        EXPECT_EQ(bench.console.Form1.graphicalview.enabled, graph) << rows.size();
    }
    EXPECT_EQ(bench.windows.menus, std::vector<std::string>(4, "MyMenu"));
}

TEST(HostList, RemovalLeavesTheOthersInTheirOrder) {
    Bench bench;
    bench.list_hosts({"A", "B", "C", "D", "E", "F"});
    Bench::select(bench.console.Form1.ListView1, {1, 4, 5});
    bench.run(removehost);
    EXPECT_EQ(drawn(bench, "ListView1"), "\nListView1:\n  1|B|-\n  1|C|-\n  1|F|-\n");
    bench.run(removehost);
    EXPECT_EQ(bench.console.Form1.ListView1.count(), 3);
}

class DeleteLogs : public testing::Test {
  protected:
    DeleteLogs() {
        for (const char* file : {"PC1_system.log", "PC1_application.log", "PC1_security.log",
                                 "PC2_system.log", "PC3_system.log"})
            bench.files.put(std::string("/app/Data/") + file, "x");
        bench.files.set_read_only("/app/Data/PC1_application.log");
    }
    void delete_logs_of(const std::vector<std::string>& hosts, const std::vector<int>& selected) {
        bench.list_hosts(hosts);
        Bench::select(bench.console.Form1.ListView1, selected);
        bench.dialogs.answer_next(MessageAnswer::Yes);
        bench.run(dellogs);
    }

    Bench bench;
    const std::string all = bench.files.names();
};

// KEEP(delete-logs-reports-the-last-file)
TEST_F(DeleteLogs, DeletesFilesOfSelectedHostsAndTellsOfTheLast) {
    const fakes::StatusHistory history(bench.console.Form1.st1);
    delete_logs_of({"PC3", "PC1", "PC2"}, {2, 3});
    EXPECT_EQ(bench.files.names(), "/app/Data/PC3_system.log\n");
    EXPECT_EQ(history.lines,
              "1: Deleted logs of Host PC1\n1: Deleted logs of Host PC2\n1: Log not found..\n");
    EXPECT_EQ(bench.console.Form1.ListView1.count(), 3);
    EXPECT_EQ(bench.console.mouse_pointer, kPointerDefault);
    EXPECT_EQ(bench.dialogs.messages[0].text,
              "Are you sure want to delete the logs of the selected hosts?");
}

// KEEP(delete-logs-takes-names-as-they-stand)
TEST_F(DeleteLogs, NamesThatAreNoFileNamesFindNothing) {
    delete_logs_of({"\\\\PC1", "..", "x/../PC1", ""}, {1, 2, 3, 4});
    EXPECT_FALSE(bench.program.ended);
    EXPECT_NE(bench.files.names().find("PC1_system.log"), std::string::npos);
    EXPECT_EQ(bench.console.Form1.st1.text(1), "Log not found..");
}

TEST_F(DeleteLogs, NothingIsTouchedWithoutASelectionOrAYes) {
    const std::string before = bench.files.names();
    delete_logs_of({"PC1", "PC2"}, {});
    Bench::select(bench.console.Form1.ListView1, {1, 2});
    bench.dialogs.answer_next(MessageAnswer::No);
    bench.run(dellogs);
    EXPECT_EQ(bench.files.names(), before);
    EXPECT_EQ(drawn(bench, "st1"), "\nst1: [][][][][]\n");
}

TEST_F(DeleteLogs, AFileThatCannotBeDeletedRaisesItsError) {
    bench.files.fail_next(fakes::FileStep::Remove, "/app/Data/PC1_system.log", "Permission denied");
    bench.list_hosts({"PC1"});
    Bench::select(bench.console.Form1.ListView1, {1});
    bench.dialogs.answer_next(MessageAnswer::Yes);
    EXPECT_THROW(dellogs(bench.console), RuntimeError);
    EXPECT_EQ(bench.console.mouse_pointer, kPointerHourglass);
}

// KEEP(enter-adds-an-empty-host)
TEST(AddHost, ButtonTestsTheFieldAndEnterDoesNot) {
    Bench bench;
    bench.windows.when_shown(FormId::Form6, [](Console& console) {
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
    bench.run(show_add_host);
    EXPECT_EQ(drawn(bench, "ListView1 st1"), R"(
ListView1:
  1|PC1.LAB|-
  1|PC1.LAB|-
  1||-
  1|BÜRO|-
st1: [][][][][]
)");
}

TEST(SelectedHostField, HandsTheFocusOn) {
    Bench bench;
    bench.run(enter_selected_host);
    EXPECT_EQ(bench.console.Form1.focus_wanted, "ListView1");
    for (const int button : {1, 2})
        bench.run([button](Console& console) {
            press_on_selected_host(console, {.button = button});
            EXPECT_EQ(console.Form1.focus_wanted, button == 2 ? "TxtAlert" : "ListView1");
        });
}

}  // namespace
}  // namespace tessarine
