#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "audit/custom_audit.h"
#include "audit/full_audit.h"
#include "fakes/rig.h"
#include "hosts/directory_dialog.h"
#include "hosts/host_list.h"
#include "hosts/host_list_files.h"
#include "hosts/preaudited_hosts.h"
#include "viewer/host_loading.h"

namespace tessarine {
namespace {

using fakes::Rig;

class LongHostList : public testing::Test {
  protected:
    LongHostList() { rig.list_hosts(std::vector<std::string>(32'767, "PC")); }

    void add_host() { add_host_row(rig.console.Form1.ListView1, "PC"); }
    // The message with which the routine ended the console; empty when it didn't.
    std::string failure_of(void (*routine)(Console&)) {
        rig.dialogs.messages.clear();
        rig.program.ended = false;
        rig.run(routine);
        return rig.program.ended ? rig.dialogs.messages.back().text : "";
    }

    Rig rig;
};

// KEEP(long-host-lists-fail)
TEST_F(LongHostList, EndsTheConsoleWhereverItIsWalked) {
    const std::string overflow = "Run-time error '6':\r\n\r\nOverflow";
    constexpr auto press = [](Console& console) {
        press_on_host_list(console, {.button = MouseButton::Left});
    };
    rig.dialogs.answer_next(MessageAnswer::Yes);
    for (const auto walk : {+press, dellogs, fullaudit, custaudit, removehost})
        EXPECT_EQ(failure_of(walk), "");
    add_host();
    rig.dialogs.answer_next(MessageAnswer::Yes);
    for (const auto walk : {+press, dellogs, fullaudit, runFullauditAllhost, custaudit, removehost})
        EXPECT_EQ(failure_of(walk), overflow);
    for (const char* hosts : {"all", "selected"}) {
        rig.console.Form4->lblHostName.caption = hosts;
        EXPECT_EQ(failure_of(run_custom_audit), overflow);
    }
    EXPECT_TRUE(rig.probe.attempts.empty());
    ListControl& objects = rig.console.frmADS->ListView1;
    for (int i = 1; i <= 32'768; ++i) objects.add_row("PC", 0);
    EXPECT_EQ(failure_of(add_listed_objects), overflow);
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 32'768);
    for (int i = 1; i <= 32'767; ++i)
        rig.files.put("/app/Data/PC" + std::to_string(i) + "_system.log", "x");
    EXPECT_EQ(failure_of(LoadPreAuditedHosts), "");
    rig.files.put("/app/Data/PC_system.log", "x");
    EXPECT_EQ(failure_of(LoadPreAuditedHosts), overflow);
}

// KEEP(long-host-lists-load-one-host)
TEST_F(LongHostList, LoadsOneOfSeveralSelectedHosts) {
    rig.files.put("/app/Data/PC_system.log", "error|d|t|s|1|u|c|m\r\n");
    const auto rows_loaded = [this] {
        Rig::select(rig.console.Form1.ListView1, {1, 2});
        EXPECT_EQ(failure_of(vieweventlogs), "");
        return rig.console.Form1.SystemList.count();
    };
    EXPECT_EQ(rows_loaded(), 0);
    add_host();
    EXPECT_EQ(rows_loaded(), 1);
}

// KEEP(long-host-lists-export-nothing)
TEST_F(LongHostList, IsExportedAsAnEmptyFile) {
    const auto exported = [this] {
        rig.dialogs.choose_file_next("/list");
        if (rig.files.file_exists("/list.txt")) rig.dialogs.answer_next(MessageAnswer::Yes);
        EXPECT_EQ(failure_of(exporthostlist), "");
        EXPECT_EQ(rig.console.Form1.st1.text(1), "Hosts list exported...");
        return rig.files.bytes("/list.txt").size();
    };
    EXPECT_EQ(exported(), 4U * 32'767);
    add_host();
    EXPECT_EQ(exported(), 0U);
}

}  // namespace
}  // namespace tessarine
