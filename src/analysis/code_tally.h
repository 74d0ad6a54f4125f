// Counting records by their event code.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

/// What is counted on one code; the texts and the icon are those of its first record.
struct CodeCount {
    std::string code;
    std::string source;
    int icon = 0;
    std::int64_t instances = 0;
};

/// Codes are compared as a whole without regard to case, and stand in the order in which they first
/// came.
class CodeTally {
  public:
    CodeTally();

    void count(std::string_view code, std::string_view source, int icon);
    /// Adds 1 to every code that has come so far.
    void count_all() { ++everywhere_; }

    std::vector<CodeCount> codes() const;

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t code = 0;  // number of the code, from 1; 0 for a free slot
    };

    std::uint32_t hash_of(std::string_view code) const;
    Slot& slot_of(std::string_view code, std::uint32_t hash);
    void grow();

    std::vector<CodeCount> codes_;  // instances without `everywhere_` as it was when the code came
    std::vector<Slot> slots_;       // a power of two of them, at most half of them in use
    std::int64_t everywhere_ = 0;
    std::uint32_t hash_start_;  // by chance, so that no host can choose codes that share a slot
};

}  // namespace tessarine
