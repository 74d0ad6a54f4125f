// What the analysis counts of one log, line by line.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/code_tally.h"
#include "core/type_words.h"

namespace tessarine {

/// A type of record that a log is counted by.
struct CountedType {
    TypeWord word;    ///< the whole type of a record that gets the icon
    TypeWord starts;  ///< how a line starts that the chart counts, in lower case
    int icon;
};

/// Takes the lines of all files of a log in their order.
class LogLineCount {
  public:
    static constexpr std::size_t kMostTypes = 3;

    /// `types` must outlive the count.
    explicit LogLineCount(std::span<const CountedType> types) : types_(types) {}

    void take_line(std::string_view line);

    std::vector<CodeCount> codes() const { return codes_.codes(); }
    /// How many lines start as the types do, in the order of the types, 2,147,483,647 at most.
    std::vector<std::int64_t> starts() const;

  private:
    struct SeenType {
        std::string word;
        int icon;           // 0 when the word is no type of the log
        std::size_t start;  // position of the type in `types_`; kMostTypes for none
    };

    const SeenType& seen_type(std::string_view word);
    SeenType classified(std::string_view word) const;

    std::span<const CountedType> types_;
    std::vector<SeenType> seen_;
    CodeTally codes_;
    std::array<std::int64_t, kMostTypes + 1> starts_{};
    int icon_ = 0;
};

}  // namespace tessarine
