#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace tessarine {
namespace {

// Unicode code points of the bytes 0x80 to 0x9F; all other bytes are their own code points.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t code_point_of(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80u] : char16_t{byte};
}

constexpr char32_t kNotUtf8 = 0xFFFFFFFF;

bool is_invisible_format(char32_t point) {
    return (point >= 0x200B && point <= 0x200F) || (point >= 0x202A && point <= 0x202E) ||
           (point >= 0x2060 && point <= 0x206F) || (point >= 0xFE00 && point <= 0xFE0F) ||
           point == 0xFEFF;
}

void append_point(std::string& target, char32_t point) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) {
        target += static_cast<char>(point);
        return;
    }
    const auto* found = std::find(kHighControls.begin(), kHighControls.end(), point);
    if (found != kHighControls.end())
        target += static_cast<char>(0x80 + (found - kHighControls.begin()));
    else if (!is_invisible_format(point))
        target += '?';
}

// Takes one character off the front of `text`. A byte that begins no valid sequence is taken alone.
char32_t take_point(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80                    ? 1
                               : lead >= 0xC2 && lead <= 0xDF ? 2
                               : lead >= 0xE0 && lead <= 0xEF ? 3
                               : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                              : 0;
    char32_t point = length == 1 ? lead : lead & (0x7Fu >> length);
    bool valid = length != 0 && length <= text.size();
    for (std::size_t i = 1; valid && i < length; ++i) {
        valid = (byte(i) & 0xC0) == 0x80;
        point = point << 6 | (byte(i) & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    valid = valid && point >= kSmallest[length] && point <= 0x10FFFF &&
            !(point >= 0xD800 && point <= 0xDFFF);
    text.remove_prefix(valid ? length : 1);
    return valid ? point : kNotUtf8;
}

constexpr std::array<unsigned char, 256> make_upper_table() {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i) table[i] = static_cast<unsigned char>(i);
    for (unsigned i = 0; i < 256; ++i)
        if (kLowerCase[i] != i) table[kLowerCase[i]] = static_cast<unsigned char>(i);
    return table;
}

constexpr auto kUpper = make_upper_table();

}  // namespace

std::string to_utf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char character : text) {
        const char16_t point = code_point_of(static_cast<unsigned char>(character));
        if (point < 0x80) {
            utf8 += static_cast<char>(point);
        } else if (point < 0x800) {
            utf8 += static_cast<char>(0xC0 | point >> 6);
            utf8 += static_cast<char>(0x80 | (point & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | point >> 12);
            utf8 += static_cast<char>(0x80 | (point >> 6 & 0x3F));
            utf8 += static_cast<char>(0x80 | (point & 0x3F));
        }
    }
    return utf8;
}

void append_from_utf8(std::string& target, std::string_view text) {
    while (!text.empty()) {
        const auto* plain_end = std::find_if(
            text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) < 0; });
        const auto plain = static_cast<std::size_t>(plain_end - text.begin());
        target.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty()) append_point(target, take_point(text));
    }
}

std::string from_utf8(std::string_view text) {
    std::string eight_bit;
    append_from_utf8(eight_bit, text);
    return eight_bit;
}

std::u16string to_utf16(std::string_view text) {
    std::u16string units(text.size(), u'\0');
    std::transform(text.begin(), text.end(), units.begin(),
                   [](char c) { return code_point_of(static_cast<unsigned char>(c)); });
    return units;
}

std::string from_utf16(std::u16string_view text) {
    std::string eight_bit;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair =
            (text[i] & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
        append_point(eight_bit, pair ? char32_t{0x10000} : char32_t{text[i]});
        if (pair) ++i;
    }
    return eight_bit;
}

unsigned char upper_case(unsigned char character) {
    return kUpper[character];
}

}  // namespace tessarine
