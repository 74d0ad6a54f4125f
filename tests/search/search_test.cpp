#include "search/search.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::FileStep;
using fakes::Rig;

class Searching : public testing::Test {
  protected:
    Searching() { rig.console.Form3.get(); }  // its first touch would set the marks of the menus

    void put(const std::string& name, const std::string& bytes) {
        rig.files.put("/app/Data/" + name + ".log", bytes);
    }
    void tick(int system, int application, int security) {
        form.Check1.value = system;
        form.Check2.value = application;
        form.Check3.value = security;
    }
    // The controls behind a search, or the message with which it ended the console.
    std::string found(const std::string& text, const std::string& controls) {
        form.TxtSearch.text = text;
        rig.program.ended = false;
        rig.run(search_and_remember);
        if (!rig.program.ended) return drawn(rig, controls);
        return rig.dialogs.messages.back().text;
    }

    Rig rig;
    MainForm& form = rig.console.Form1;
};

TEST_F(Searching, ShowsTheHitsOfAllHostsInTheTickedLogsAlone) {
    put("PC2_system", "Error|d|t|s|1|u|PC2|the disk\r\nError|d|t|s|2|u|PC2|m\r\n");
    put("PC1_SYSTEM", "Warnung|d|t|s|3|u|PC1|Disk\nodd|disk\n");
    put("PC1_application",
        "information|d|t|s|4|u|PC1|disk\r\naudit failure|d|t|s|5|u|PC1|disk\r\n");
    put("PC1_application.log.old", "fehler|d|t|disk|6|u|PC1|m\r\n");
    put("PC1_security", "audit success|d|t|s|7|u|PC1|disk\r\n");
    tick(1, 1, 0);
    form.SysErrors.value = 0;
    form.hideignore.checked = true;
    form.IgnoreList.add_row("1", 0);
    form.SecurityList.add_row("of the view before", 6);
    EXPECT_EQ(found("DISK", "SystemList ApplicationList SecurityList st1 pbar1"), R"(
SystemList:
  4|Error|d|t|s|1|u|PC2|the disk
  2|Warnung|d|t|s|3|u|PC1|Disk|disk
ApplicationList:
  3|information|d|t|s|4|u|PC1|disk|d|t|s|5|u|PC1|disk
  4|fehler|d|t|disk|6|u|PC1|m
SecurityList:
st1: [Done ...][][Showing 4 records][][]
pbar1: 0/4
)");
    tick(0, 0, 1);
    EXPECT_EQ(found("disk", "SystemList ApplicationList SecurityList"), R"(
SystemList:
ApplicationList:
SecurityList:
  6|audit success|d|t|s|7|u|PC1|disk
)");
}

TEST_F(Searching, TellsItsProgressByLog) {
    put("PC1_system", "");
    put("PC1_application", "");
    put("PC1_security", "");
    tick(1, 1, 1);
    form.st1.set_text(3, "Total: 1 events");
    fakes::StatusHistory history(form.st1);
    EXPECT_EQ(found("x", "pbar1"), "\npbar1: 0/3\n");
    EXPECT_EQ(history.lines,
              "1: Searching System logs.Please wait\n3: Total: 1 events\n3: \n"
              "1: Searching Application logs.Please wait...\n"
              "1: Searching Security logs.Please wait...\n1: Done ...\n3: Showing 0 records\n");
}

TEST_F(Searching, ColoursAlertsAndMarksTheTabsOfTheirLogs) {
    put("PC1_application", "error|d|t|s|7a|u|c|m\r\nerror|d|t|s|8|u|c|m\r\nerror|d|t|m\r\n");
    put("PC1_security", "audit failure|d|t|s|8|u|c|m\r\n");
    tick(0, 1, 1);
    form.AlertList.add_row("7A", 0);
    form.AlertList.add_row("7a", 0);
    const std::string plain = R"(
ApplicationList:
  4|error|d|t|s|7a|u|c|m
  4|error|d|t|s|8|u|c|m
  4|error|d|t|m
TabStrip2: [* System Log  #1][ Application Log#1][ Security Log  #1][Analysis Summary]
)";
    const std::string highlighted = R"(
ApplicationList:
  4|!error|!d|!t|!s|!7a|!u|!c|!m
  4|error|d|t|s|8|u|c|m
  4|!error|!d|!t|!m
TabStrip2: [* System Log  #1][ Application Log#2][ Security Log  #1][Analysis Summary]
)";
    EXPECT_EQ(found("m", "ApplicationList TabStrip2"), plain);
    form.highlightpatt.checked = true;
    EXPECT_EQ(found("m", "ApplicationList TabStrip2"), highlighted);
    form.highlightpatt.checked = false;
    EXPECT_EQ(found("m", "ApplicationList TabStrip2"), plain);
}

// KEEP(search-leaves-sorting-on)
TEST_F(Searching, LetsFieldsOfASortedTableLandOnTheLastRow) {
    put("PC1_system", "warning|d|t|s|1|u|c|m\r\nerror|D|T|S|2|U|C|M\r\n");
    tick(1, 0, 0);
    form.SystemList.sort_by(0, SortOrder::Ascending);
    EXPECT_EQ(found("", "SystemList"), R"(
SystemList:
  4|error
  >2|warning|d|t|s|1|u|c|m|D|T|S|2|U|C|M
)");
}

// KEEP(search-fails-without-files)
TEST_F(Searching, EndsTheConsoleInAStoreWithoutFilesUnlessNoLogIsTicked) {
    form.TxtSearch.text = "x";
    EXPECT_EQ(found("x", "st1"), "\nst1: [Done ...][][Showing 0 records][][]\n") << "no folder";
    rig.files.make_folders("/app/Data");
    EXPECT_EQ(found("x", "st1"), "\nst1: [Done ...][][Showing 0 records][][]\n") << "no file";
    tick(0, 1, 0);
    EXPECT_EQ(found("x", "st1"), "Run-time error '9':\r\n\r\nSubscript out of range");
}

// KEEP(search-counters-run-on)
TEST_F(Searching, CountsTheFilesOfAllPassesInOneBar) {
    for (const char* name : {"A_application", "B_application", "A_security", "B_security"})
        put(name, "");
    tick(0, 1, 1);
    EXPECT_EQ(found("x", "pbar1"), "\npbar1: 0/4\n");
}

// KEEP(search-plans-security-from-application-files) KEEP(search-ignores-errors-from-its-first-hit)
TEST_F(Searching, RunsOverTheEndOfTheBarInTheSecurityLog) {
    put("A_application", "");
    put("A_security", "audit success|here\r\n");
    put("B_security", "audit success|there\r\n");
    tick(0, 0, 1);
    EXPECT_EQ(found("here", "SecurityList pbar1"), R"(
SecurityList:
  6|audit success|here
  6|audit success|there
pbar1: 0/1
)");
    EXPECT_EQ(found("there", "pbar1"), "Run-time error '6':\r\n\r\nInvalid property value");
}

// KEEP(search-counts-a-nameless-system-log)
TEST_F(Searching, CountsANamelessSystemLogAndLeavesItClosed) {
    put("_system", "error|x\r\n");
    put("_application", "error|x\r\n");
    tick(1, 0, 0);
    EXPECT_EQ(found("x", "SystemList pbar1"), "\nSystemList:\npbar1: 0/1000\n");
    tick(0, 1, 0);
    const std::string nothing_planned = "Run-time error '6':\r\n\r\nInvalid property value";
    EXPECT_EQ(found("x", "pbar1"), nothing_planned);
    put("A_security", "error|x\r\n");
    tick(0, 0, 1);
    EXPECT_EQ(found("x", "pbar1"), nothing_planned);
}

TEST_F(Searching, PassesOverAFileThatCannotBeReadOnceThereWasAHit) {
    put("A_system", "error|x\r\n");
    put("B_system", "error|x\r\n");
    put("C_system", "error|x\r\n");
    put("D_system", "error|x\r\n");
    tick(1, 0, 0);
    rig.files.fail_next(FileStep::Open, "/app/Data/B_system.log", "Denied");
    rig.files.fail_next(FileStep::Read, "/app/Data/C_system.log", "Broken");
    EXPECT_EQ(found("x", "st1"), "\nst1: [Done ...][][Showing 2 records][][]\n");
    EXPECT_EQ(rig.files.open_files(), 0);
    rig.files.fail_next(FileStep::Open, "/app/Data/A_system.log", "Denied");
    EXPECT_EQ(found("x", "st1"), "Run-time error '440':\r\n\r\nDenied");
}

TEST_F(Searching, TakesNoMoreFilesThanItCanCount) {
    for (int i = 0; i < 32'767; ++i) put(std::to_string(i), "");
    EXPECT_EQ(found("x", "st1"), "\nst1: [Done ...][][Showing 0 records][][]\n");
    put("last", "");
    EXPECT_EQ(found("x", "st1"), "Run-time error '6':\r\n\r\nOverflow");
}

// KEEP(search-history-begins-with-an-empty-line)
TEST_F(Searching, RemembersEachTextUntilTheHistoryIsCleared) {
    put("PC1_system", "error|x\r\n");
    tick(1, 0, 0);
    found("x", "st1");
    found("", "st1");
    EXPECT_EQ(found("x", "txtSearchHist TxtSearch"),
              "\ntxtSearchHist: \"~x~~x\"\nTxtSearch: \"x\"\n");
    rig.run(clear_search_history);
    EXPECT_EQ(drawn(rig, "txtSearchHist TxtSearch SystemList Check1"),
              "\ntxtSearchHist: \"\"\nTxtSearch: \"\"\nSystemList:\n  4|error|x\nCheck1: 1\n");
}

}  // namespace
}  // namespace tessarine
