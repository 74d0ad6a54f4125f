// Counting records by their event code.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tables/code_map.h"

namespace tessarine {

/// What is counted on one code; the texts and the icon are those of its first record.
struct CodeCount {
    std::string code;
    std::string source;
    int icon = 0;
    std::int64_t instances = 0;
};

/// The counts stand in the order in which their codes first came.
class CodeTally {
  public:
    void count(std::string_view code, std::string_view source, int icon);
    /// Adds 1 to every code that has come so far.
    void count_all() { ++everywhere_; }

    std::vector<CodeCount> codes() const;

  private:
    CodeMap codes_;
    std::vector<CodeCount> counts_;  // instances without `everywhere_` as it was when the code came
    std::int64_t everywhere_ = 0;
};

}  // namespace tessarine
