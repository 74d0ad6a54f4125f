// Random numbers that are the same on every machine.
#pragma once

#include <cstdint>

namespace tessarine::bench {

/// The generator splitmix64 (Steele, Lea, Flood 2014).
class RandomNumbers {
  public:
    explicit RandomNumbers(std::uint64_t seed) : state_(seed) {}

    /// A number from 0 to `limit` - 1.
    std::uint32_t below(std::uint32_t limit) {
        return static_cast<std::uint32_t>((next() >> 32) * limit >> 32);
    }

  private:
    std::uint64_t next() {
        std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15;
        mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
        return mixed ^ mixed >> 31;
    }

    std::uint64_t state_;
};

}  // namespace tessarine::bench
