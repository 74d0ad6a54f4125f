// The signed 16-bit numbers of the console.
#pragma once

#include <cstdint>
#include <limits>

#include "core/runtime_error.h"

namespace tessarine {

/// The largest number that they hold: 32,767.
inline constexpr int kMost16 = std::numeric_limits<std::int16_t>::max();

/// `count` as such a number; raises "Overflow" beyond the largest.
inline std::int16_t count16(int count) {
    if (count > kMost16) throw RuntimeError(ErrorNumber::Overflow, "Overflow");
    return static_cast<std::int16_t>(count);
}

/// Counts in such a number; a step beyond the largest raises "Overflow" and leaves the value.
class Counter16 {
  public:
    int value() const { return value_; }
    bool full() const { return value_ == kMost16; }
    void add_one() { value_ = count16(value_ + 1); }

  private:
    std::int16_t value_ = 0;
};

}  // namespace tessarine
