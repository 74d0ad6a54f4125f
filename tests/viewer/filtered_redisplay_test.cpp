#include "viewer/filtered_redisplay.h"

#include <gtest/gtest.h>

#include <string>

#include "core/log_facts.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"
#include "viewer/host_loading.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

class FilteredRedisplay : public testing::Test {
  protected:
    FilteredRedisplay() {
        rig.console.Form3.get();  // its first touch would set the marks of the menus
        rig.list_hosts({"PC1", "PC2"});
        Rig::select(rig.console.Form1.ListView1, {1});
    }

    void put(const std::string& log, const std::string& bytes, const std::string& host = "PC1") {
        rig.files.put("/app/Data/" + host + "_" + log + ".log", bytes);
    }
    std::string after_click(EventLog log, const std::string& controls) {
        rig.run([log](Console& console) { click_type_box(console, log); });
        return drawn(rig, controls);
    }

    Rig rig;
    MainForm& form = rig.console.Form1;
};

TEST_F(FilteredRedisplay, ReadsOneLogAgainUnderTheBoxes) {
    put("system", "error|d|t|s|1|u|c|m\r\ninformation|d|t|s|2|u|c|m\r\n");
    put("security", "audit failure|d|t|s|3|u|c|m\r\n");
    rig.run(vieweventlogs);
    form.SysErrors.value = 0;
    EXPECT_EQ(after_click(EventLog::System, "SystemList SecurityList st1 txtSelectedHost"), R"(
SystemList:
  3|information|d|t|s|2|u|c|m
SecurityList:
  5|audit failure|d|t|s|3|u|c|m
st1: [][][Total: 2 events    Ignored:0    Highlighted:0][][]
txtSelectedHost: "Host: PC1"
)");
    form.SysInformations.value = 0;
    EXPECT_EQ(after_click(EventLog::System, "SystemList"), "\nSystemList:\n");
    // The host that is selected now, and that log alone.
    put("security", "audit success|d|t|s|4|u|c|m\r\n", "PC2");
    Rig::select(form.ListView1, {1, 2});
    EXPECT_EQ(after_click(EventLog::Security, "SecurityList txtSelectedHost List1Index"), R"(
SecurityList:
  6|audit success|d|t|s|4|u|c|m
txtSelectedHost: "Host: PC1"
List1Index: "1"
)");
}

// KEEP(redisplay-turns-the-forms-pointer)
TEST_F(FilteredRedisplay, ShowsItsStepsAndThePointerOfTheFormAlone) {
    put("security", "audit success|d|t|s|4|u|c|m\r\n");
    int pointers = 0;
    rig.windows.when_events_pass(
        [&](Console& console) { EXPECT_EQ(console.Form1.mouse_pointer, kPointerDefault); });
    rig.windows.when_events_pass([&](Console& console) {
        EXPECT_EQ(console.Form1.mouse_pointer, kPointerHourglass);
        EXPECT_EQ(console.mouse_pointer, kPointerDefault);
        ++pointers;
    });
    fakes::StatusHistory history(form.st1);
    after_click(EventLog::Security, "");
    EXPECT_EQ(pointers, 1);
    EXPECT_EQ(form.mouse_pointer, kPointerDefault);
    EXPECT_EQ(history.lines,
              "1: Please wait ...\n3: Loading record ... 0 of security log\n1: \n"
              "3: 1 records parsed\n3: Total: 1 events    Ignored:0    Highlighted:0\n");
}

TEST_F(FilteredRedisplay, LetsEventsPassBetweenItsSteps) {
    put("system", "error|d|t|s|1|u|c|m\r\n");
    put("application", "error|d|t|s|1|u|c|m\r\n");
    put("security", "audit success|d|t|s|1|u|c|m\r\n");
    const struct {
        EventLog log;
        const char* with_file;
        const char* without;
    } rows_at_yields[] = {{EventLog::System, "101", "100"},
                          {EventLog::Application, "101", "10"},
                          {EventLog::Security, "11", "10"}};
    for (const auto& [log, with_file, without] : rows_at_yields)
        for (const int host : {1, 2}) {
            Rig::select(form.ListView1, {host});
            table_of(form, log).clear();
            table_of(form, log).add_row("before", 4);
            std::string seen;
            rig.windows.at_each_yield(
                [&](Console&) { seen += std::to_string(table_of(form, log).count()); });
            after_click(log, "");
            EXPECT_EQ(seen, host == 1 ? with_file : without) << facts_of(log).word;
        }
}

TEST_F(FilteredRedisplay, DoesNothingWithoutAHostAndEndsWithoutAFile) {
    form.ListView1.clear();
    EXPECT_EQ(after_click(EventLog::System, "st1"), "\nst1: [][][][][]\n");
    rig.list_hosts({"PC1"});
    form.SecurityList.add_row("old", 6);
    Rig::select(form.ListView1, {1});
    fakes::StatusHistory history(form.st1);
    EXPECT_EQ(after_click(EventLog::Security, "SecurityList"), "\nSecurityList:\n");
    EXPECT_NE(history.lines.find("1: No Security Event log\n1: \n"), std::string::npos);
    form.SystemList.add_row("kept", 4);
    rig.run([](Console& console) { ShowRecords(console, "PC1", "setup"); });
    EXPECT_EQ(drawn(rig, "SystemList st1"),
              "\nSystemList:\n  4|kept\nst1: [][][Total: 0 events    Ignored:0    "
              "Highlighted:0][][]\n");
}

// KEEP(redisplay-loses-application-audit-failures)
TEST_F(FilteredRedisplay, GivesApplicationAuditFailuresToTheRowBefore) {
    put("application", "warning|d|t|s|1|u|c|m\r\naudit failure|D|T|S|2|U|C|M\r\n");
    rig.run(vieweventlogs);
    EXPECT_EQ(form.ApplicationList.count(), 2);
    form.highlightpatt.checked = true;
    form.AlertList.add_row("2", 0);
    EXPECT_EQ(after_click(EventLog::Application, "ApplicationList st1"), R"(
ApplicationList:
  2|!warning|!d|!t|!s|!1|!u|!c|!m|D|T|S|2|U|C|M
st1: [][][Total: 2 events    Ignored:0    Highlighted:1][][]
)");
}

// KEEP(redisplay-fills-a-sorted-table)
TEST_F(FilteredRedisplay, PutsFieldsAfterTheLastRowOfASortedTable) {
    put("system", "error|d|t|s|2|u|c|m\r\nwarning|d|t|s|1|u|c|m\r\n");
    form.SystemList.sort_by(4, SortOrder::Ascending);
    EXPECT_EQ(after_click(EventLog::System, "SystemList"), R"(
SystemList:
  2|warning
  >4|error|d|t|s|2|u|c|m|d|t|s|1|u|c|m
)");
}

// KEEP(redisplay-resets-foreign-tab-marks)
TEST_F(FilteredRedisplay, MarksTwoTabsByTheOneLogThatItRead) {
    form.highlightpatt.checked = true;
    form.AlertList.add_row("7", 0);
    for (const char* log : {"system", "application", "security"})
        put(log, log == std::string("security") ? "audit failure|d|t|s|7|u|c|m\r\n"
                                                : "error|d|t|s|7|u|c|m\r\n");
    rig.run(vieweventlogs);
    EXPECT_EQ(after_click(EventLog::System, "TabStrip2"),
              "\nTabStrip2: [* System Log  #2][ Application Log#2][ Security Log  #1]"
              "[Analysis Summary]\n");
    EXPECT_EQ(after_click(EventLog::Security, "TabStrip2"),
              "\nTabStrip2: [* System Log  #1][ Application Log#2][ Security Log  #2]"
              "[Analysis Summary]\n");
    form.AlertList.clear();
    EXPECT_EQ(after_click(EventLog::Application, "TabStrip2"),
              "\nTabStrip2: [* System Log  #1][ Application Log#2][ Security Log  #1]"
              "[Analysis Summary]\n");
}

}  // namespace
}  // namespace tessarine
