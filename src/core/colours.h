// The colours of rows and charts.
#pragma once

#include <cstdint>

namespace tessarine {

/// A colour as one number: red in the lowest byte, then green, then blue.
constexpr std::uint32_t rgb(unsigned red, unsigned green, unsigned blue) {
    return red | green << 8 | blue << 16;
}

inline constexpr std::uint32_t kRed = rgb(255, 0, 0);
inline constexpr std::uint32_t kGreen = rgb(0, 192, 0);
inline constexpr std::uint32_t kBlue = rgb(0, 0, 255);
inline constexpr std::uint32_t kYellow = rgb(255, 213, 0);
/// The colour that the desktop gives to texts.
inline constexpr std::uint32_t kDefaultColour = 0xFF000000;

}  // namespace tessarine
