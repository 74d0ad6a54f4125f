#include "analysis/log_line_count.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "core/text.h"
#include "store/event_record.h"

namespace tessarine {
namespace {

constexpr std::array kTypes = {CountedType{kError, {"err", "feh"}, 4},
                               CountedType{kInformation, {"inf", "inf"}, 3},
                               CountedType{kWarning, {"war", "war"}, 2}};

// The same, step by step: each row is looked at for each line.
class PlainCount {
  public:
    void take_line(const std::string& line) {
        const EventRecord record(line);
        for (const CountedType& type : kTypes)
            if (same_text(record.field(0), type.word.english) ||
                same_text(record.field(0), type.word.german))
                icon_ = type.icon;
        const bool has_code = record.field_count() > 4;
        const auto is_it = [&](const CodeCount& row) {
            return !has_code || same_text(row.code, record.field(4));
        };
        if (has_code && std::none_of(rows.begin(), rows.end(), is_it))
            rows.push_back({std::string(record.field(4)), std::string(record.field(3)), icon_, 0});
        for (CodeCount& row : rows)
            if (is_it(row)) ++row.instances;
        const std::string start = lower_text(line.substr(0, 3));
        if (start == "err" || start == "feh") ++starts[0];
        if (start == "inf") ++starts[1];
        if (start == "war") ++starts[2];
    }

    std::vector<CodeCount> rows;
    std::vector<std::int64_t> starts = {0, 0, 0};

  private:
    int icon_ = 0;
};

std::string any_line(std::mt19937& random) {
    static const std::vector<std::string> types = {"Error",
                                                   "FEHLER",
                                                   "information",
                                                   "Informationen",
                                                   "Warnung",
                                                   "warning",
                                                   "Info",
                                                   "",
                                                   "er",
                                                   "Audit Success",
                                                   "\xDC"
                                                   "berwachungsfehler",
                                                   "warnings that are many"};
    static const std::vector<std::string> codes = {"a", "A", "Ab", "aB", "\xC4", "\xE4", "", " a"};
    std::string line = types[random() % types.size()];
    if (random() % 4 == 0) line = std::string(random() % 4, 'x') + std::to_string(random() % 40);
    const std::size_t fields = random() % 50 == 0 ? random() % 4 : 4 + random() % 6;
    for (std::size_t i = 1; i <= fields; ++i) {
        line += "|";
        if (i == 3) line += "source" + std::to_string(random() % 9);
        if (i == 4)
            line += random() % 4 == 0 ? codes[random() % codes.size()]
                                      : std::to_string(random() % 1500);
    }
    return line;
}

TEST(LogLineCount, AgreesWithAWalkOverAllRowsForEachLine) {
    std::mt19937 random(11);
    LogLineCount count(kTypes);
    PlainCount plain;
    for (int i = 0; i < 20'000; ++i) {
        const std::string line = any_line(random);
        count.take_line(line);
        plain.take_line(line);
    }
    const std::vector<CodeCount> codes = count.codes();
    ASSERT_EQ(codes.size(), plain.rows.size());
    ASSERT_GT(codes.size(), 1'400U);
    for (std::size_t i = 0; i < codes.size(); ++i) {
        EXPECT_EQ(codes[i].code, plain.rows[i].code);
        EXPECT_EQ(codes[i].source, plain.rows[i].source) << codes[i].code;
        EXPECT_EQ(codes[i].icon, plain.rows[i].icon) << codes[i].code;
        EXPECT_EQ(codes[i].instances, plain.rows[i].instances) << codes[i].code;
    }
    EXPECT_EQ(count.starts(), plain.starts);
}

}  // namespace
}  // namespace tessarine
