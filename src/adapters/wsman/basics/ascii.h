// Text of protocols: ASCII, whatever the locale.
#pragma once

#include <algorithm>
#include <string_view>

namespace tessarine {

constexpr char lower_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

constexpr bool is_ascii_digit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool is_ascii_letter(char c) {
    return lower_ascii(c) >= 'a' && lower_ascii(c) <= 'z';
}

/// Equal but for the case of ASCII letters.
constexpr bool same_ascii_text(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char l, char r) { return lower_ascii(l) == lower_ascii(r); });
}

/// Without the white space at both ends.
constexpr std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kSpace = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(kSpace), text.size());
    return text.substr(begin, text.find_last_not_of(kSpace) + 1 - begin);
}

}  // namespace tessarine
