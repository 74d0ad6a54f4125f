#include "viewer/host_loading.h"

#include <gtest/gtest.h>

#include <string>

#include "core/log_facts.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

class LogLoading : public testing::Test {
  protected:
    LogLoading() {
        rig.console.Form3.get();  // its first touch would set the marks of the menus
        rig.list_hosts({"PC1", "PC2"});
        Rig::select(rig.console.Form1.ListView1, {1});
    }

    void put(const std::string& log, const std::string& bytes) {
        rig.files.put("/app/Data/PC1_" + log + ".log", bytes);
    }
    std::string loaded(const std::string& controls) {
        rig.run(vieweventlogs);
        return drawn(rig, controls);
    }
    static void fill(ListControl& list, std::initializer_list<const char*> entries) {
        for (const char* entry : entries) list.add_row(entry, 0);
    }

    Rig rig;
    MainForm& form = rig.console.Form1;
};

TEST_F(LogLoading, GivesEachLogTheTypesOfItsOwnInBothLanguages) {
    const std::string types =
        "Error|d|t|s|1|u|c|m\r\nFehler|d|t|s|2|u|c|m\r\nwarnung|d|t|s|3|u|c|m\r\n"
        "INFORMATION|d|t|s|4|u|c|m\r\nAudit Success|d|t|s|5|u|c|m\r\n"
        "\xDC"
        "berwachungsfehler|d|t|s|6|u|c|m|rest\r\n";
    put("system", types);
    put("application", types);
    put("security", types);
    EXPECT_EQ(loaded("SystemList ApplicationList SecurityList st1 txtSelectedHost List1Index"), R"(
SystemList:
  4|Error|d|t|s|1|u|c|m
  4|Fehler|d|t|s|2|u|c|m
  2|warnung|d|t|s|3|u|c|m
  3|INFORMATION|d|t|s|4|u|c|m|d|t|s|5|u|c|m|d|t|s|6|u|c|m
ApplicationList:
  4|Error|d|t|s|1|u|c|m
  4|Fehler|d|t|s|2|u|c|m
  2|warnung|d|t|s|3|u|c|m
  3|INFORMATION|d|t|s|4|u|c|m|d|t|s|5|u|c|m
  5|Überwachungsfehler|d|t|s|6|u|c|m
SecurityList:
  6|Audit Success|d|t|s|5|u|c|m
  5|Überwachungsfehler|d|t|s|6|u|c|m
st1: [][][Total: 18 events    Ignored:0    Highlighted:0][][]
txtSelectedHost: "Host: PC1"
List1Index: "1"
)");
}

TEST_F(LogLoading, CountsEveryLineButShowsOnlyRecordsOfCheckedTypes) {
    put("system", "error|d|t|s|7|u|c|m\r\n\r\nx\r\ninformation|d|t|s|8|u|c|m\r\n");
    form.SysErrors.value = 0;
    form.highlightpatt.checked = true;
    fill(form.AlertList, {"7"});
    EXPECT_EQ(loaded("SystemList TabStrip2 st1"), R"(
SystemList:
  3|information|d|t|s|8|u|c|m
TabStrip2: [* System Log  #1][ Application Log#1][ Security Log  #1][Analysis Summary]
st1: [][][Total: 4 events    Ignored:0    Highlighted:0][][]
)");
}

// KEEP(alert-entries-count-each)
TEST_F(LogLoading, ColoursWholeRowsAndMarksTheTabsOfTheirLogs) {
    put("security", "audit failure|d|t|s|A1|u|c|m\r\naudit success|d|t|s|A11|u|c|m\r\n");
    form.highlightpatt.checked = true;
    fill(form.AlertList, {"a1", "A1", "11"});
    EXPECT_EQ(loaded("SecurityList TabStrip2 st1"), R"(
SecurityList:
  5|!audit failure|!d|!t|!s|!A1|!u|!c|!m
  6|audit success|d|t|s|A11|u|c|m
TabStrip2: [* System Log  #1][ Application Log#1][ Security Log  #2][Analysis Summary]
st1: [][][Total: 2 events    Ignored:0    Highlighted:2][][]
)");
}

TEST_F(LogLoading, LeavesIgnoredCodesOutBeforeItLooksAtTheirType) {
    put("system", "error|d|t|s|7036|u|c|m\r\nerror|d|t|s|7|u|c|m\r\n");
    fill(form.IgnoreList, {"7036"});
    EXPECT_EQ(loaded("st1"), "\nst1: [][][Total: 2 events    Ignored:0    Highlighted:0][][]\n");
    form.hideignore.checked = true;
    form.SysErrors.value = 0;
    EXPECT_EQ(loaded("st1"), "\nst1: [][][Total: 2 events    Ignored:1    Highlighted:0][][]\n");
}

// KEEP(unmatched-type-grows-the-last-row)
TEST_F(LogLoading, GivesTheFieldsOfAnUnknownTypeToTheRowBeforeIt) {
    const std::string odd = "odd|D|T|S|9|U|C|M\r\n";
    put("system", odd + "error|d|t|s|2|u|c|m\r\n" + odd);
    put("security", odd + "odd\r\n");
    form.highlightpatt.checked = true;
    fill(form.AlertList, {"9"});
    EXPECT_EQ(loaded("SystemList SecurityList TabStrip2 st1"), R"(
SystemList:
  4|!error|!d|!t|!s|!2|!u|!c|!m|D|T|S|9|U|C|M
SecurityList:
TabStrip2: [* System Log  #2][ Application Log#1][ Security Log  #1][Analysis Summary]
st1: [][][Total: 5 events    Ignored:0    Highlighted:1][][]
)");
}

// KEEP(missing-code-counts-as-a-match)
TEST_F(LogLoading, TakesARecordWithoutACodeForAMatchOfEveryEntry) {
    // The shortest record has two characters.
    put("system", "error|d|t|s\r\nab\r\na\r\n");
    form.highlightpatt.checked = true;
    fill(form.AlertList, {"1", "2"});
    form.hideignore.checked = true;
    EXPECT_EQ(loaded("SystemList st1"), R"(
SystemList:
  4|!error|!d|!t|!s
st1: [][][Total: 3 events    Ignored:0    Highlighted:4][][]
)");
    fill(form.IgnoreList, {"x"});
    EXPECT_EQ(loaded("SystemList st1"), R"(
SystemList:
st1: [][][Total: 3 events    Ignored:2    Highlighted:0][][]
)");
}

TEST_F(LogLoading, EmptiesAllTablesForAHostWithoutFilesAndForSeveralHosts) {
    put("system", "error|d|t|s|1|u|c|m\r\n");
    put("application", "error|d|t|s|1|u|c|m\r\n");
    put("security", "audit success|d|t|s|1|u|c|m\r\n");
    for (const auto& [hosts, total] : {std::pair<std::vector<int>, int>{{1, 2}, 3}, {{2}, 0}}) {
        Rig::select(form.ListView1, {1});
        loaded("st1");
        Rig::select(form.ListView1, hosts);
        EXPECT_EQ(
            loaded("SystemList ApplicationList SecurityList st1 txtSelectedHost"),
            "\nSystemList:\nApplicationList:\nSecurityList:\nst1: [][][Total: " +
                std::to_string(total) +
                " events    Ignored:0    Highlighted:0][][]\ntxtSelectedHost: \"Host: PC2\"\n");
    }
}

TEST_F(LogLoading, LetsEventsPassBetweenItsSteps) {
    std::string seen;
    rig.windows.at_each_yield([&](Console& console) {
        for (const EventLog log : kEventLogs) seen += std::to_string(table_of(form, log).count());
        seen += console.mouse_pointer == kPointerHourglass ? "*" : "";
        seen += std::to_string(form.TabStrip2.tab(3).image) + " ";
    });
    form.highlightpatt.checked = true;
    fill(form.AlertList, {"1"});
    rig.run(vieweventlogs);
    EXPECT_EQ(seen, "0000 000*0 000*1 ");
    put("system", "error|d|t|s|1|u|c|m\r\n");
    put("application", "error|d|t|s|1|u|c|m\r\n");
    put("security", "audit success|d|t|s|1|u|c|m\r\n");
    seen.clear();
    rig.run(vieweventlogs);
    EXPECT_EQ(seen, "0001 001*1 101*1 111*2 ");
}

TEST_F(LogLoading, SaysThatThereIsNoSecurityLogUntilTheEndOfTheLoad) {
    fakes::StatusHistory history(form.st1);
    EXPECT_EQ(loaded("st1"), "\nst1: [][][Total: 0 events    Ignored:0    Highlighted:0][][]\n");
    EXPECT_EQ(history.lines,
              "1: Please wait ...\n1: No Security Event log\n1: \n"
              "3: Total: 0 events    Ignored:0    Highlighted:0\n");
}

TEST_F(LogLoading, PutsTheRowsBackInFileOrder) {
    for (const char* log : {"system", "application"})
        put(log, "error|d|t|s|2|u|c|m\r\nerror|d|t|s|1|u|c|m\r\n");
    form.SystemList.sort_by(4, SortOrder::Ascending);
    form.ApplicationList.sort_by(4, SortOrder::Ascending);
    EXPECT_EQ(loaded("SystemList ApplicationList"), R"(
SystemList:
  4|error|d|t|s|2|u|c|m
  4|error|d|t|s|1|u|c|m
ApplicationList:
  4|error|d|t|s|2|u|c|m
  4|error|d|t|s|1|u|c|m
)");
}

TEST_F(LogLoading, EndsAtAFileThatCannotBeReadFurther) {
    put("system", "error|d|t|s|2|u|c|m\r\n");
    put("application", "error|d|t|s|3|u|c|m\r\n");
    rig.files.fail_next(fakes::FileStep::Open, "/app/Data/PC1_application.log", "Denied");
    rig.files.fail_next(fakes::FileStep::Read, "/app/Data/PC1_system.log", "Broken");
    EXPECT_EQ(loaded("SystemList ApplicationList st1"), R"(
SystemList:
ApplicationList:
st1: [][][Total: 0 events    Ignored:0    Highlighted:0][][]
)");
}

// KEEP(record-counter-stays-at-32767)
TEST_F(LogLoading, ShowsAllRowsOfALongLogButStopsCounting) {
    std::string bytes;
    for (int i = 0; i < 40'000; ++i) bytes += "error|d|t|s|1|u|c|m\r\n";
    put("system", bytes);
    fakes::StatusHistory history(form.st1);
    EXPECT_EQ(loaded("st1"),
              "\nst1: [][][Total: 32767 events    Ignored:0    Highlighted:0][][]\n");
    EXPECT_EQ(form.SystemList.count(), 40'000);
    EXPECT_NE(history.lines.find("3: Loading record ... 32767 of System log\n"), std::string::npos);
}

TEST_F(LogLoading, FindsTheFilesOfAHostWithLeadingBackslashes) {
    rig.list_hosts({"\\\\PC1"});
    Rig::select(form.ListView1, {1});
    put("system", "error|d|t|s|1|u|c|m\r\n");
    EXPECT_EQ(loaded("SystemList"), "\nSystemList:\n  4|error|d|t|s|1|u|c|m\n");
}

}  // namespace
}  // namespace tessarine
