// The signed 16-bit counters of the console.
#pragma once

#include <cstdint>
#include <limits>

#include "core/runtime_error.h"

namespace tessarine {

/// Counts as far as 32,767; a step beyond raises "Overflow" and leaves the value.
class Counter16 {
  public:
    explicit Counter16(std::int16_t value = 0) : value_(value) {}

    int value() const { return value_; }
    bool full() const { return value_ == std::numeric_limits<std::int16_t>::max(); }

    void add_one() {
        if (full()) throw RuntimeError(ErrorNumber::Overflow, "Overflow");
        ++value_;
    }
    void reset() { value_ = 0; }

  private:
    std::int16_t value_;
};

/// `count` where a signed 16-bit number holds it; raises "Overflow" above 32,767.
inline int count16(int count) {
    if (count > std::numeric_limits<std::int16_t>::max())
        throw RuntimeError(ErrorNumber::Overflow, "Overflow");
    return count;
}

}  // namespace tessarine
