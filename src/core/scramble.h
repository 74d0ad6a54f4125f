// Hiding a text from a casual look. It is no encryption and protects nothing from a reader who
// means it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

/// A linear congruential generator with 24 bits of state; the stored passwords depend on every
/// step.
class PseudoRandom {
  public:
    /// Starts anew and draws once: 0.224007.
    float reset();
    /// Mixes a number into the state, which keeps its low 8 bits.
    void seed(double number);
    /// The next number from 0 up to, but not including, 1.
    float draw();

  private:
    std::uint32_t state_ = 0;
};

/// Hides or shows `text`; applied twice with the same key it gives every 8-bit text back. Raises
/// "Overflow" when the key's sum leaves 32 bits.
std::string Scramble(std::string_view text, std::string_view key);

}  // namespace tessarine
