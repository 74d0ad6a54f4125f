// Pictures for workbooks.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace tessarine {

/// The bytes of a bitmap file of 320 x 200 points, all of one colour (blue, green, red).
inline std::string bitmap_of(std::initializer_list<char> colour) {
    constexpr std::uint32_t kWidth = 320, kHeight = 200, kHead = 54;
    constexpr std::uint32_t kPointBytes = 3 * kWidth * kHeight;
    std::string bytes = "BM";
    const auto add = [&bytes](std::uint32_t number, int size) {
        for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
    };
    for (const std::uint32_t number : {kHead + kPointBytes, 0U, kHead, 40U, kWidth, kHeight})
        add(number, 4);
    for (const std::uint32_t planes_and_bits : {1U, 24U}) add(planes_and_bits, 2);
    for (const std::uint32_t number : {0U, kPointBytes, 0U, 0U, 0U, 0U}) add(number, 4);
    for (std::uint32_t point = 0; point < kWidth * kHeight; ++point) bytes.append(colour);
    return bytes;
}

}  // namespace tessarine
