#include "store/record_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {
namespace {

// A file that gives at most `step` bytes at a time.
class SteppedFile final : public File {
  public:
    SteppedFile(std::string bytes, std::size_t step) : bytes_(std::move(bytes)), step_(step) {}

    std::size_t read(char* buffer, std::size_t size) override {
        const std::size_t given = std::min({size, step_, bytes_.size() - position_});
        std::copy_n(bytes_.data() + position_, given, buffer);
        position_ += given;
        return given;
    }
    void write(std::string_view) override { FAIL(); }
    void flush() override {}
    void close() override {}

  private:
    std::string bytes_;
    std::size_t step_;
    std::size_t position_ = 0;
};

std::vector<std::string> lines_of(const std::string& bytes, std::size_t step) {
    SteppedFile file(bytes, step);
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

}  // namespace
}  // namespace tessarine
