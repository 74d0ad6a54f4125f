#include "store/record_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/dripping_file.h"

namespace tessarine {
namespace {

std::vector<std::string> lines_of(const std::string& bytes, std::size_t step) {
    fakes::DrippingFile file(bytes, step);
    RecordReader reader(file);
    std::vector<std::string> lines;
    std::string_view line;
    while (reader.next(line)) lines.emplace_back(line);
    return lines;
}

// The same, one byte after the other.
std::vector<std::string> plain_lines(const std::string& bytes) {
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') {
            line += bytes[i];
            continue;
        }
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
        lines.push_back(std::exchange(line, {}));
    }
    if (!line.empty()) lines.push_back(line);
    return lines;
}

TEST(RecordReader, TakesEveryLineEndWhereverAReadStops) {
    using Lines = std::vector<std::string>;
    const struct {
        std::string bytes;
        Lines lines;
    } cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\rb\nc\r\n\r\n\n", {"a", "b", "c", "", ""}},
        {"a\r\n\rb\r", {"a", "", "b"}},
        {std::string("a\0b\r\n", 5), {std::string("a\0b", 3)}},
    };
    for (const auto& each : cases)
        for (const std::size_t step : {1u, 2u, 3u, 100u})
            EXPECT_EQ(lines_of(each.bytes, step), each.lines) << each.bytes << " by " << step;
}

TEST(RecordReader, AgreesWithAPlainSplitAroundTheBordersOfItsBlocks) {
    std::mt19937 random(7);
    std::string bytes;
    while (bytes.size() < 900'000) {
        bytes.append(random() % 3 == 0 ? random() % 200'000 : random() % 40, 'x');
        bytes += std::vector<std::string>{"\r\n", "\r", "\n", "\r\n\r\n"}[random() % 4];
    }
    for (const std::size_t step : {std::size_t{4096}, std::size_t{131'072}, bytes.size()})
        EXPECT_EQ(lines_of(bytes, step), plain_lines(bytes)) << "by " << step;
}

TEST(RecordReader, GrowsForALineThatIsLongerThanItsBlocks) {
    const std::string long_line(5'000'000, 'y');
    const auto lines = lines_of("a\r\n" + long_line + "\r\nb", 65'536);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1].size(), long_line.size());
    EXPECT_EQ(lines[2], "b");
}

// Three gigabytes, of which the first 16 MB are kept.
TEST(RecordReader, PassesOverWhatALineHasTooMuch) {
    const std::string block(1 << 20, 'y');
    fakes::DrippingFile file(block, block.size(), 3000);
    RecordReader endless(file);
    std::string_view line;
    ASSERT_TRUE(endless.next(line));
    EXPECT_EQ(line.size(), kLongestLine);
    EXPECT_FALSE(endless.next(line));
    for (const char* end : {"\r\n", "\r", "\n"}) {
        const std::string whole(kLongestLine, 'z');
        const std::string more(1'000'000, 'm');
        const auto lines =
            lines_of("a" + std::string(end) + whole + end + whole + more + end + "b" + end, 70'001);
        ASSERT_EQ(lines.size(), 4u);
        EXPECT_TRUE(lines[1] == whole && lines[2] == whole);
        EXPECT_EQ(lines[3], "b");
    }
}

}  // namespace
}  // namespace tessarine
