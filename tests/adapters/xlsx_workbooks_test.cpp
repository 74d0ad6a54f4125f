#include "adapters/xlsx/xlsx_workbooks.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdio>

#include "adapters/system_file_size_limit.h"
#include "adapters/system_temporary_folder.h"
#include "core/runtime_error.h"
#include "fakes/environment.h"
#include "office/bitmap.h"

namespace tessarine {
namespace {

class XlsxWorkbooksTest : public testing::Test {
  protected:
    static std::string written(const std::vector<Sheet>& sheets) {
        return XlsxWorkbooks().write(sheets);
    }
    static std::string error_of(const std::vector<Sheet>& sheets) {
        try {
            written(sheets);
        } catch (const RuntimeError& error) {
            return error.description();
        }
        return "no error";
    }
    // What the workbook holds, in words.
    static std::string content(const std::vector<Sheet>& sheets) {
        const std::string command = "python3 -B '" TESSARINE_TESTS_DIR
                                    "/office/read_workbook.py' '" +
                                    written(sheets) + "' 2>&1";
        FILE* output = ::popen(command.c_str(), "r");
        std::string text = "\n";
        for (int next = std::getc(output); next != EOF; next = std::getc(output))
            text += static_cast<char>(next);
        EXPECT_EQ(::pclose(output), 0) << text;
        return text;
    }
    std::ptrdiff_t files() const {
        return std::distance(std::filesystem::directory_iterator(folder.path()), {});
    }

    TemporaryFolder folder;
    fakes::Environment of_user{"TMPDIR", folder.path().c_str()};
};

Sheet column_of(const std::vector<std::string>& texts) {
    Sheet sheet{.name = "Texts"};
    int row = 0;
    for (const std::string& text : texts) sheet.cells.push_back({++row, 1, text});
    return sheet;
}

TEST_F(XlsxWorkbooksTest, HoldsEachSheetsPictureAndCells) {
    const Sheet first{.name = "One", .picture = bitmap_of({'\1', '\2', '\3'})};
    Sheet second{.name =
                     "Zw\xF6lf Gr\xFC\xDF"
                     "e",
                 .picture = bitmap_of({'\4', '\5', '\6'})};
    second.cells = {{12, 1, "Event Code", true}, {12, 3, "Source", true}, {13, 1, "7036"}};
    const Sheet third{.name = "Three", .picture = bitmap_of({'\7', '\7', '\7'})};
    EXPECT_EQ(content({first, second, third}), R"(
One:
  picture of 320 x 200 in 010203, rows 1 to 11
  columns
Zwölf Grüße:
  picture of 320 x 200 in 040506, rows 1 to 11
  columns 13 8
  A12 bold "Event Code"
  C12 bold "Source"
  A13 7036
Three:
  picture of 320 x 200 in 070707, rows 1 to 11
  columns
)");
}

TEST_F(XlsxWorkbooksTest, TakesForNumbersWhatIsPlainlyOne) {
    EXPECT_EQ(content({column_of({"0010", "-5", "007", "12.5", "-0", "999999999999999"})}), R"cells(
Texts:
  columns 19
  A1 10
  A2 -5
  A3 7
  A4 12.5
  A5 0
  A6 999999999999999
)cells");
    EXPECT_EQ(content({column_of({"-", "1e5", "+1", " 5", "5 ", "inf", "nan(1)", "0x10", "1.2.3",
                                  "1-2", "1234567890123456", "1,5"})}),
              R"cells(
Texts:
  columns 20
  A1 "-"
  A2 "1e5"
  A3 "+1"
  A4 " 5"
  A5 "5 "
  A6 "inf"
  A7 "nan(1)"
  A8 "0x10"
  A9 "1.2.3"
  A10 "1-2"
  A11 "1234567890123456"
  A12 "1,5"
)cells");
}

// Texts come from the events of hosts.
TEST_F(XlsxWorkbooksTest, HoldsAnyTextAsItIs) {
    EXPECT_EQ(content({column_of({"=1+1", "@SUM(A1)", "{=A1}", "http://example.net/", "<b>&\"'",
                                  "\xDC"
                                  "berwachung \x80\x81",
                                  std::string("zero\0and\x01\x1F\r\n\t~", 14), "_x0041_ _x00",
                                  " blanks ", std::string(40'000, 'x')})}),
              R"cells(
Texts:
  columns 256
  A1 "=1+1"
  A2 "@SUM(A1)"
  A3 "{=A1}"
  A4 "http://example.net/"
  A5 "<b>&\"'"
  A6 "\u00dcberwachung \u20ac\u0081"
  A7 "zero and\u0001\u001f\r\n\t~"
  A8 "_x0041_ _x00"
  A9 " blanks "
  A10 "xxxxxxxxxx" and so on, 32767 characters
)cells");
    std::string escapes;
    for (int i = 0; i < 4'682; ++i) escapes += "_x0041_";
    EXPECT_NE(content({column_of({escapes})}).find("and so on"), std::string::npos);
}

TEST_F(XlsxWorkbooksTest, EachWorkbookIsAFileOfItsOwnForItsOwnerAlone) {
    const mode_t mask_before = ::umask(0);
    const std::string one = written({column_of({"1"})});
    const std::string other = written({column_of({"2"})});
    ::umask(mask_before);
    EXPECT_NE(one, other);
    EXPECT_EQ(files(), 2);
    EXPECT_TRUE(one.starts_with(folder.path_of("tessarine-")) && one.ends_with(".xlsx")) << one;
    EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(one).permissions()), 0600U);
}

TEST_F(XlsxWorkbooksTest, WhatCannotBeWrittenIsToldAndLeavesNoFile) {
    const std::string head = "The workbook can't be written: ";
    EXPECT_EQ(error_of({{.name = "a/b"}}),
              head + "Worksheet name cannot contain invalid characters: '[ ] : * ? / \\'");
    EXPECT_EQ(error_of({{.name = "One", .picture = "no picture"}}),
              head + "Couldn't read image dimensions or DPI.");
    Sheet too_long{.name = "Long"};
    too_long.cells.push_back({1'048'577, 1, "after the last row"});
    EXPECT_EQ(error_of({too_long}), head + "Worksheet row or column index out of range.");
    EXPECT_EQ(files(), 0);
}

TEST_F(XlsxWorkbooksTest, AFolderThatTakesNoFileIsToldInWords) {
    const auto told = [this](const std::string& name) {
        const fakes::Environment other("TMPDIR", folder.path_of(name).c_str());
        return error_of({column_of({"1"})});
    };
    EXPECT_EQ(told("missing"),
              "The workbook can't be written to the temporary folder: No such file or directory");
    std::filesystem::create_directory(folder.path_of("\xE4\xB8\xBB"));
    EXPECT_EQ(told("\xE4\xB8\xBB"),
              "The temporary folder " + folder.path_of("?") +
                  " holds characters that Tessarine can't keep; set TMPDIR to another folder");
}

// A limit on the size of files fails as a full disk does.
TEST_F(XlsxWorkbooksTest, AFullDiskIsToldInWords) {
    const FileSizeLimit limit(3'000);
    EXPECT_EQ(error_of({column_of({"1"})}),
              "The workbook can't be written to the temporary folder: File too large");
    EXPECT_EQ(files(), 0);
}

}  // namespace
}  // namespace tessarine
