#include "patterns/code_lists.h"

#include <gtest/gtest.h>

#include "core/code_page.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"
#include "store/event_record.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

/// One of the two lists with its routines, for what must be the same in both.
struct Side {
    const char* path;
    const char* list_name;
    const char* missing_text;
    ListControl MainForm::*list;
    TextBox MainForm::*field;
    void (*load)(Console&);
    void (*add)(Console&);
    void (*remove)(Console&);
    void (*pick)(Console&);
};

const Side kSides[] = {
    {"/app/alertpatterns.txt", "AlertList", "Alert Pattern file modified..", &MainForm::AlertList,
     &MainForm::TxtAlert, LoadAlertPatterns, add_alert_pattern, remove_alert_pattern,
     pick_alert_pattern},
    {"/app/ignorelist.txt", "IgnoreList", "Ignore list modified..", &MainForm::IgnoreList,
     &MainForm::txtIgnore, LoadIgnoreList, add_ignored_code, remove_ignored_code,
     pick_ignored_code},
};

class CodeLists : public testing::TestWithParam<Side> {
  protected:
    void start_with(const std::string& bytes) {
        rig.files.put(side.path, bytes);
        rig.run(side.load);
    }
    void type(void (*routine)(Console&), const std::string& text) {
        (rig.console.Form1.*side.field).text = text;
        rig.run(routine);
        EXPECT_EQ((rig.console.Form1.*side.field).text, "");
    }
    std::string file() { return rig.files.bytes(side.path); }
    std::string rows() {
        std::string text;
        ListControl& list = rig.console.Form1.*side.list;
        for (int row = 1; row <= list.count(); ++row) text.append(list.row(row).text()) += ",";
        return text;
    }

    Rig rig;
    const Side& side = GetParam();
};

std::string name_of_side(const testing::TestParamInfo<Side>& tested) {
    return tested.param.list_name;
}

INSTANTIATE_TEST_SUITE_P(Both, CodeLists, testing::ValuesIn(kSides), name_of_side);

TEST_P(CodeLists, LoadSkipsOnlyEmptyLines) {
    start_with("4625\r\n\r\n  \r\n\r\n7036\n\n\xC4\r\r\nlast");
    EXPECT_EQ(rows(), "4625,  ,7036,\xC4,last,");
    start_with("");
    EXPECT_EQ(rows(), "");
}

// KEEP(blank-lines-between-codes)
TEST_P(CodeLists, AdditionsLeaveBlankLinesAndDuplicates) {
    start_with("7036\r\n");
    type(side.add, "1000");
    type(side.add, "1000");
    EXPECT_EQ(file(), "7036\r\n1000\r\n\r\n1000\r\n\r\n");
    EXPECT_EQ(rows(), "7036,1000,1000,");
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [][][][][]\n");
}

TEST_P(CodeLists, RemovalTakesEveryEqualEntryAndTheBlankLines) {
    start_with("abc\r\n\r\n1000\r\n\r\nAbC\r\n\r\n10\r\n\r\n");
    Rig::select(rig.console.Form1.*side.list, {2});
    type(side.remove, "ABC");
    EXPECT_EQ(file(), "1000\r\n10\r\n\r\n\r\n");
    type(side.remove, "");
    EXPECT_EQ(file(), "1000\r\n10\r\n\r\n\r\n");
    type(side.remove, "1000");
    type(side.remove, "10");
    EXPECT_EQ(file(), "\r\n\r\n");
    EXPECT_EQ(rows(), "");
}

// KEEP(missing-code-file-loses-the-change)
TEST_P(CodeLists, MissingFileIsCreatedEmptyAndTheRowsStay) {
    for (auto* routine : {side.add, side.remove}) {
        start_with("7036\r\n");
        rig.files.remove(side.path);
        type(routine, "7036");
        EXPECT_EQ(file(), "");
        EXPECT_EQ(rows(), "7036,");
        EXPECT_EQ(rig.console.Form1.st1.text(1), side.missing_text);
    }
}

TEST_P(CodeLists, ClickOnARowCopiesItToTheField) {
    start_with("7036\r\n  x \r\n");
    Rig::select(rig.console.Form1.*side.list, {2});
    rig.run(side.pick);
    EXPECT_EQ((rig.console.Form1.*side.field).text, "  x ");
}

TEST_P(CodeLists, FailuresOfTheFileAreTheDefaultFailure) {
    start_with("7036\r\n");
    rig.files.set_read_only(side.path);
    (rig.console.Form1.*side.field).text = "1000";
    EXPECT_THROW(side.add(rig.console), RuntimeError);
    EXPECT_EQ(file(), "7036\r\n");
    EXPECT_EQ(rows(), "7036,");
    EXPECT_EQ(rig.files.open_files(), 0);
}

TEST_P(CodeLists, AnotherConsolesChangeIsNotWrittenOver) {
    start_with("7036\r\n");
    (rig.console.Form1.*side.field).text = "7036";
    const auto other = rig.files.lock("/app", {});
    EXPECT_THROW(side.add(rig.console), RuntimeError);
    EXPECT_THROW(side.remove(rig.console), RuntimeError);
    EXPECT_EQ(file(), "7036\r\n");
}

TEST_P(CodeLists, TooManyEntriesToWalkAreNotLost) {
    std::string bytes;
    for (int i = 0; i < 32'768; ++i) bytes += "1\r\n";
    start_with(bytes);
    (rig.console.Form1.*side.field).text = "1";
    EXPECT_THROW(side.remove(rig.console), RuntimeError);
    EXPECT_EQ(file().size(), bytes.size());
    (rig.console.Form1.*side.list).remove_row(1);
    type(side.remove, "1");
    EXPECT_EQ(file(), "\r\n\r\n");
}

// KEEP(an-empty-alert-pattern-is-added)
TEST(CodeListFields, OnlyTheIgnoreSideRefusesAnEmptyField) {
    Rig rig;
    rig.files.put("/app/alertpatterns.txt", "1\r\n");
    rig.files.put("/app/ignorelist.txt", "1\r\n");
    rig.run(add_alert_pattern);
    rig.run(add_ignored_code);
    EXPECT_EQ(rig.files.bytes("/app/alertpatterns.txt"), "1\r\n\r\n\r\n");
    EXPECT_EQ(rig.files.bytes("/app/ignorelist.txt"), "1\r\n");
    EXPECT_EQ(drawn(rig, "AlertList IgnoreList"), "\nAlertList:\n  0|1\nIgnoreList:\n");
}

TEST(CodeListMenus, TakeTheCodeOfTheTableThatShows) {
    Rig rig;
    rig.run(LoadAlertPatterns);
    rig.run(LoadIgnoreList);
    MainForm& form = rig.console.Form1;
    const std::pair<const char*, ListControl*> tables[] = {
        {" system LOG  ", &form.SystemList},
        {" Application Log", &form.ApplicationList},
        {" Security Log  ", &form.SecurityList}};
    int code = 100;
    for (const auto& [caption, table] : tables) {
        for (const char* word : {"error", "warning"}) {
            const std::string line =
                std::string(word) + "|1/1/2004|1:00|Src|" + std::to_string(++code) + "|u|c|m";
            table->add_record_row(EventRecord(line).text(), 4);
        }
        Rig::select(*table, {2});
        form.lblselectedTab.caption = caption;
        rig.run(addtohighlightlist);
        rig.run(addtoignore);
    }
    form.lblselectedTab.caption = "System Log";
    rig.run(addtoignore);
    EXPECT_EQ(rig.files.bytes("/app/alertpatterns.txt"), "102\r\n\r\n104\r\n\r\n106\r\n\r\n");
    EXPECT_EQ(drawn(rig, "IgnoreList"), "\nIgnoreList:\n  0|102\n  0|104\n  0|106\n");

    form.lblselectedTab.caption = " System Log  ";
    form.SystemList.clear();
    EXPECT_THROW(addtoignore(rig.console), RuntimeError);
    EXPECT_EQ(form.IgnoreList.count(), 3);
}

// KEEP(no-highlighting-from-the-security-analysis)
TEST(CodeListMenus, AnalysisOfTheSecurityLogAddsNothing) {
    Rig rig;
    rig.run(LoadAlertPatterns);
    MainForm& form = rig.console.Form1;
    int code = 0;
    for (ListControl* table : {&form.ListView2, &form.ListView3, &form.ListView4}) {
        table->add_row(std::to_string(++code), 0);
        Rig::select(*table, {1});
    }
    for (const char* marker : {"list4", "list2", "", "LIST3"}) {
        form.lblselectedTab2.caption = marker;
        rig.run(addtohighlightlist3);
    }
    EXPECT_FALSE(rig.program.ended);
    EXPECT_EQ(rig.files.bytes("/app/alertpatterns.txt"), "1\r\n\r\n2\r\n\r\n");
}

}  // namespace
}  // namespace tessarine
