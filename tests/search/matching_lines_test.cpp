#include "search/matching_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "core/text.h"
#include "fakes/dripping_file.h"
#include "fakes/memory_files.h"

namespace tessarine {
namespace {

using Lines = std::vector<std::string>;

Lines lines_with(const std::string& text, const std::string& bytes) {
    fakes::MemoryFiles files;
    files.put("/f", bytes);
    const auto file = files.open("/f", OpenFor::Reading);
    MatchingLines matching(text);
    matching.start(*file);
    Lines lines;
    for (std::string_view line; matching.next(line);) lines.emplace_back(line);
    return lines;
}

// What the search is, line by line.
Lines expected_lines(const std::string& text, const std::string& bytes) {
    Lines lines;
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", begin), bytes.size());
        const std::string line = bytes.substr(begin, end - begin);
        std::string folded = lower_text(line);
        std::replace(folded.begin(), folded.end(), '|', ' ');
        if (!line.empty() && folded.find(lower_text(text)) != std::string::npos)
            lines.push_back(line);
        begin = end + 1;
    }
    return lines;
}

// KEEP(search-takes-bars-for-blanks)
TEST(MatchingLines, GoesOverTheBordersOfFieldsAndFindsNoBar) {
    EXPECT_EQ(lines_with("B c", "a|b|c|d\r\nab c\r\nb\r\nc\r\n"), (Lines{"a|b|c|d", "ab c"}));
    EXPECT_EQ(lines_with(" ", "|\n"), Lines{"|"});
    EXPECT_EQ(lines_with("b|c", "a|b|c|d\r\n"), Lines{});
    EXPECT_EQ(lines_with("|", "|\r\n"), Lines{});
}

// The end of the second line and of its text lies beyond what is kept of it.
TEST(MatchingLines, PassesOverWhatALineHasTooMuch) {
    const std::string whole(kLongestLine + 1'000'000, 'z');
    EXPECT_EQ(lines_with("ab", "ab\r\n" + whole + "abc\r\nab"), (Lines{"ab", "ab"}));
    const Lines found = lines_with("zz", whole + "abc\n");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].size(), kLongestLine);
}

TEST(MatchingLines, FoldsTheLettersOfTheCodePage) {
    // A and O with dots, s with caron, y with dots: each case has a byte of its own.
    const std::string lower = "\xE4\xF6\x9A\xFF", upper = "\xC4\xD6\x8A\x9F";
    EXPECT_EQ(lines_with(lower, "x" + upper + "\n"), Lines{"x" + upper});
    EXPECT_EQ(lines_with(upper, lower + "x\n"), Lines{lower + "x"});
    EXPECT_EQ(lines_with("[", "{\n"), Lines{}) << "no letters, though they differ like cases";
    EXPECT_EQ(lines_with("\xD7", "\xF7\n"), Lines{});
}

TEST(MatchingLines, TakesTheEmptyTextForAllLinesButEmptyOnes) {
    EXPECT_EQ(lines_with("", "\r\na\r\n\r\rb\n\n \n\r\nc"), (Lines{"a", "b", " ", "c"}));
    EXPECT_EQ(lines_with("", ""), Lines{});
}

TEST(MatchingLines, TakesEveryKindOfLineEndAndNothingOverIt) {
    EXPECT_EQ(lines_with("x", "1x\r2x\n3\r\n4x\r\r5x"), (Lines{"1x", "2x", "4x", "5x"}));
    EXPECT_EQ(lines_with("a\nb", "a\nb\n"), Lines{});
    EXPECT_EQ(lines_with("a\rb", "a\rb\n"), Lines{});
    const std::string with_nul("a\0b", 3);
    EXPECT_EQ(lines_with(with_nul, "x" + with_nul + "y\nab\n"), Lines{"x" + with_nul + "y"});
}

TEST(MatchingLines, FindsATextOnWhicheverSideOfABlocksEndItStands) {
    constexpr std::size_t kBlock = std::size_t{256} << 10;
    for (std::size_t before = kBlock - 70; before < kBlock + 10; ++before) {
        std::string bytes(before, '.');
        bytes.replace(before / 2, 2, "\r\n");
        bytes += "begin a NEEDLE end\r\nhay\r\n";
        ASSERT_EQ(lines_with("needle", bytes), expected_lines("needle", bytes)) << before;
        bytes.insert(before, "\r\n");
        ASSERT_EQ(lines_with("needle", bytes), Lines{"begin a NEEDLE end"}) << before;
    }
}

TEST(MatchingLines, TakesLinesAndTextsOfAnyLength) {
    std::string text(64 << 10, 'x');
    text[40'000] = '#';
    const std::string line = std::string(900'000, 'x') + text + std::string(300'000, 'z');
    EXPECT_EQ(lines_with(text, "x#\n" + line + "\n" + text.substr(1)), Lines{line});
    EXPECT_EQ(lines_with(text, line), Lines{line}) << "a line without end";
    EXPECT_EQ(lines_with(text, text.substr(1)), Lines{});
}

TEST(MatchingLines, GivesTheLinesThatASearchLineByLineGives) {
    const std::string alphabet("aAbB |\xC4\xE4\r\n\0", 11);
    std::mt19937 random(1);
    const auto letters = [&](std::size_t most) {
        std::string made(random() % (most + 1), ' ');
        for (char& letter : made) letter = alphabet[random() % alphabet.size()];
        return made;
    };
    for (int i = 0; i < 4'000; ++i) {
        const std::string text = letters(i % 5), bytes = letters(i % 400);
        fakes::DrippingFile file(bytes, 1 + random() % 500);
        MatchingLines matching(text);
        for (int time = 0; time < 2; ++time) {
            matching.start(file);
            Lines lines;
            for (std::string_view line; matching.next(line);) lines.emplace_back(line);
            ASSERT_EQ(lines, expected_lines(text, bytes))
                << "'" << text << "' in '" << bytes << "'";
            file = fakes::DrippingFile(bytes, 7);
        }
    }
}

}  // namespace
}  // namespace tessarine
