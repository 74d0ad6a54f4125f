#include "analysis/matching_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/memory_files.h"

namespace tessarine {
namespace {

class Matching : public testing::Test {
  protected:
    using Lines = std::vector<std::string>;

    Lines lines_with(const std::string& text, const std::string& bytes) {
        files_.put("/f", bytes);
        const auto file = files_.open("/f", OpenFor::Reading);
        MatchingLines matching(text);
        matching.start(*file);
        Lines lines;
        for (std::string_view line; matching.next(line);) lines.emplace_back(line);
        return lines;
    }

  private:
    fakes::MemoryFiles files_;
};

// KEEP(search-takes-bars-for-blanks)
TEST_F(Matching, GoesOverTheBordersOfFieldsAndFindsNoBar) {
    EXPECT_EQ(lines_with("B c", "a|b|c|d\r\nab c\r\nb\r\nc\r\n"), (Lines{"a|b|c|d", "ab c"}));
    EXPECT_EQ(lines_with(" ", "|\n"), Lines{"|"});
    EXPECT_EQ(lines_with("b|c", "a|b|c|d\r\n"), Lines{});
    EXPECT_EQ(lines_with("|", "|\r\n"), Lines{});
}

TEST_F(Matching, FoldsTheLettersOfTheCodePage) {
    // A and O with dots, s with caron, y with dots: each case has a byte of its own.
    const std::string lower = "\xE4\xF6\x9A\xFF", upper = "\xC4\xD6\x8A\x9F";
    EXPECT_EQ(lines_with(lower, "x" + upper + "\n"), Lines{"x" + upper});
    EXPECT_EQ(lines_with(upper, lower + "x\n"), Lines{lower + "x"});
    EXPECT_EQ(lines_with("[", "{\n"), Lines{}) << "no letters, though they differ like cases";
    EXPECT_EQ(lines_with("\xD7", "\xF7\n"), Lines{});
}

TEST_F(Matching, TakesTheEmptyTextForAllLinesButEmptyOnes) {
    EXPECT_EQ(lines_with("", "\r\na\r\n\r\rb\n\n \n\r\nc"), (Lines{"a", "b", " ", "c"}));
    EXPECT_EQ(lines_with("", ""), Lines{});
}

TEST_F(Matching, TakesEveryKindOfLineEndAndNothingOverIt) {
    EXPECT_EQ(lines_with("x", "1x\r2x\n3\r\n4x\r\r5x"), (Lines{"1x", "2x", "4x", "5x"}));
    EXPECT_EQ(lines_with("a\nb", "a\nb\n"), Lines{});
    EXPECT_EQ(lines_with("a\rb", "a\rb\n"), Lines{});
    const std::string with_nul("a\0b", 3);
    EXPECT_EQ(lines_with(with_nul, "x" + with_nul + "y\nab\n"), Lines{"x" + with_nul + "y"});
}

}  // namespace
}  // namespace tessarine
