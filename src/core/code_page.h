// The console's 8-bit code page, Windows-1252: one byte is one character. Only this file knows it.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tessarine {

/// 8-bit text to UTF-8. The five bytes that Windows-1252 leaves undefined become the control
/// characters of the same number.
std::string to_utf8(std::string_view text);

/// UTF-8 to 8-bit text. What the page lacks is lost: invisible format characters (U+200E, zero
/// widths, byte-order mark) are dropped, any other character, and each byte that is no UTF-8,
/// becomes "?".
std::string from_utf8(std::string_view text);

/// The same, appended to `target`.
void append_from_utf8(std::string& target, std::string_view text);

/// 8-bit text to UTF-16, one unit for each byte.
std::u16string to_utf16(std::string_view text);

/// UTF-16 to 8-bit text, with the losses of `from_utf8`.
std::string from_utf16(std::u16string_view text);

/// The lower case of each 8-bit character, here for loops over the bytes of whole files.
inline constexpr auto kLowerCase = [] {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
    for (unsigned i = 'A'; i <= 'Z'; ++i) table[i] = static_cast<unsigned char>(i + 32);
    for (unsigned i = 0xC0; i <= 0xDE; ++i)
        if (i != 0xD7) table[i] = static_cast<unsigned char>(i + 32);
    table[0x8A] = 0x9A;
    table[0x8C] = 0x9C;
    table[0x8E] = 0x9E;
    table[0x9F] = 0xFF;
    return table;
}();

/// The lower and the upper case of one 8-bit character.
constexpr unsigned char lower_case(unsigned char character) {
    return kLowerCase[character];
}
unsigned char upper_case(unsigned char character);

}  // namespace tessarine
