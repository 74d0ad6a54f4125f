#include "analysis/workbook_export.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/events.h"
#include "chrome/start_up.h"
#include "core/code_page.h"
#include "core/text.h"
#include "fakes/golden.h"
#include "fakes/rig.h"
#include "office/sample_analysis.h"

namespace tessarine {
namespace {

using fakes::FileStep;
using fakes::golden;
using fakes::Rig;

constexpr const char* kPicture = "/app/Chart.bmp";
constexpr const char* kPath = "/tmp/analysis.xlsx";

// A workbook as text, the cells in the order in which they were made.
std::string shown(const std::vector<Sheet>& sheets) {
    std::string text;
    for (const Sheet& sheet : sheets) {
        text.append(sheet.name).append(":\n");
        if (!sheet.picture.empty()) text.append("  picture ").append(sheet.picture).append("\n");
        for (const SheetCell& cell : sheet.cells) {
            text.append("  ").append(1, static_cast<char>('A' + cell.column - 1));
            text += std::to_string(cell.row) + (cell.bold ? " bold" : "");
            text += " \"" + to_utf8(replace_text(cell.text, "\x01", "?")) + "\"\n";
        }
    }
    return text;
}

class WorkbookExport : public testing::Test {
  protected:
    WorkbookExport() { rig.run(start_up); }

    void export_analysis() {
        rig.run([](Console& console) {
            find_event(control_events(), MainForm::kId, "Command7", EventKind::Click)
                ->routine(console, {});
        });
    }
    // The message of the runtime error that ended the console.
    std::string last_message() const {
        return rig.dialogs.messages.empty() ? "" : rig.dialogs.messages.back().text;
    }
    void export_lists() {
        rig.run([](Console& console) {
            MainForm& lists = console.Form1;
            ExpoXL(console, lists.SystemList, lists.ApplicationList, lists.SecurityList);
        });
    }
    static void add_rows(ListControl& table, int count) {
        for (int i = 0; i < count; ++i) {
            ListControl::Row row = table.add_row("1", 4);
            for (std::size_t k = 1; k < table.columns.size(); ++k) row.add_sub_item("x");
        }
    }

    Rig rig;
    MainForm& form = rig.console.Form1;
};

TEST_F(WorkbookExport, HasASheetForEachLogWithPictureTableAndTypes) {
    fill_with_sample(form);
    export_analysis();
    EXPECT_EQ(shown(rig.workbooks.written), golden("workbook.txt"));
    EXPECT_EQ(rig.shell.opened, std::vector<std::string>{kPath});
    EXPECT_TRUE(rig.dialogs.messages.empty());
    EXPECT_EQ(form.st1.text(1), "");
}

TEST_F(WorkbookExport, BeforeAnyAnalysisHasCaptionsAndZeros) {
    export_analysis();
    const std::string sheet = shown({rig.workbooks.written.back()});
    EXPECT_EQ(sheet, R"(Security Events:
  picture bars Audit Failure=0 Audit Success=0
  A12 bold "Event Code"
  B12 bold "Instances"
  C12 bold "Source"
  E12 bold "Event Type"
  F12 bold "Occurances"
  E13 "Audit Failure"
  E14 "Audit Success"
  F13 "0"
  F14 "0"
)");
}

// KEEP(export-takes-the-clipboard) KEEP(export-leaves-the-last-chart)
TEST_F(WorkbookExport, LeavesTheSecurityChartOnTheClipboardAndInItsFile) {
    form.SecPie.points = {1, 2};
    export_analysis();
    EXPECT_EQ(rig.clipboard.its_picture, "bars Audit Failure=1 Audit Success=2");
    EXPECT_EQ(rig.files.bytes(kPicture), rig.clipboard.its_picture);
    EXPECT_EQ(rig.files.open_files(), 0);
}

TEST_F(WorkbookExport, WithoutAProgramForItIsToldAndWhereItIs) {
    rig.shell.has_programs = false;
    export_analysis();
    EXPECT_TRUE(rig.shell.opened.empty());
    EXPECT_EQ(last_message(), "Excel Components Missing.Cannot Export To Excel Sheet");
    EXPECT_EQ(rig.dialogs.messages.back().style, MessageStyle::Critical);
    EXPECT_EQ(form.st1.text(1), std::string("The workbook is in ") + kPath);
    EXPECT_FALSE(rig.program.ended);
}

TEST_F(WorkbookExport, AFailureEndsTheConsole) {
    rig.files.fail_next(FileStep::Close, kPicture, "Disk full");
    export_analysis();
    EXPECT_EQ(last_message(), "Run-time error '440':\r\n\r\nDisk full");
    EXPECT_TRUE(rig.program.ended);
    EXPECT_TRUE(rig.workbooks.written.empty());
    rig.workbooks.fails = true;
    export_analysis();
    EXPECT_EQ(last_message(), "Run-time error '440':\r\n\r\nNo space left on device");
    EXPECT_TRUE(rig.shell.opened.empty());
}

// KEEP(long-tables-fail-to-export)
TEST_F(WorkbookExport, OfMoreThan32767RowsFailsAfterThePictureOfItsSheet) {
    add_rows(form.ListView2, 32'767);
    export_analysis();
    EXPECT_EQ(rig.workbooks.written.size(), 3U);
    EXPECT_EQ(rig.workbooks.written[1].cells[3 + 3 * 32'766].row, 12 + 32'767);
    add_rows(form.ListView2, 1);
    export_analysis();
    EXPECT_EQ(last_message(), "Run-time error '6':\r\n\r\nOverflow");
    EXPECT_TRUE(rig.files.bytes(kPicture).starts_with("bars Error="));
}

// KEEP(list-export-saves-under-no-name)
TEST_F(WorkbookExport, OfTheRecordListsHasPlainCaptionsAndAnEmptyRow) {
    for (ListControl* list : {&form.SystemList, &form.SecurityList}) {
        list->columns.resize(2);
        add_rows(*list, 2);
    }
    form.ApplicationList.columns.resize(1);
    rig.dialogs.choose_file_next("/home/test.xls");
    const std::string files_before = rig.files.names();
    export_lists();
    EXPECT_EQ(shown(rig.workbooks.written), R"(System Log:
  A1 "Type"
  B1 "Date"
  A3 "1"
  B3 "x"
  A4 "1"
  B4 "x"
Application Log:
  A1 "Type"
Security Log:
  A1 "Type"
  B1 "Date"
  A3 "1"
  B3 "x"
  A4 "1"
  B4 "x"
)");
    ASSERT_EQ(rig.dialogs.choices.size(), 1U);
    EXPECT_EQ(rig.dialogs.choices.back().title, "save test.xls");
    EXPECT_EQ(rig.files.names(), files_before);
    EXPECT_EQ(rig.shell.opened, std::vector<std::string>{kPath});
}

// KEEP(list-export-asks-for-its-first-list-alone)
TEST_F(WorkbookExport, OfTheRecordListsWantsRowsInTheFirstOne) {
    add_rows(form.ApplicationList, 1);
    export_lists();
    EXPECT_EQ(form.st1.text(1), "Error. Populate the list first");
    EXPECT_TRUE(rig.workbooks.written.empty());
}

}  // namespace
}  // namespace tessarine
