#include "adapters/xlsx/cell_text.h"

#include <algorithm>
#include <charconv>
#include <numeric>

#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr std::size_t kLongestText = 32'767;
constexpr std::string_view kDigits = "0123456789";
constexpr std::ptrdiff_t kExactDigits = 15;

bool is_digit(char character) {
    return kDigits.find(character) != std::string_view::npos;
}

bool is_hexadecimal(char character) {
    return is_digit(character) || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

// Whether the text begins as the file spells a control character: "_x000D_".
bool begins_as_escape(std::string_view text) {
    constexpr std::size_t kLength = 7;
    return text.size() >= kLength && text.starts_with("_x") && text[kLength - 1] == '_' &&
           std::all_of(text.begin() + 2, text.begin() + kLength - 1, is_hexadecimal);
}

int character_width(char character) {
    constexpr std::string_view kNarrow = " !\"'()*,-./:;I[\\]^`fijlrt{|}";
    constexpr std::string_view kWide = "%&@MWmw";
    const bool beyond_ascii = static_cast<unsigned char>(character) > '~';
    if (kWide.find(character) != std::string_view::npos) return 13;
    if (kNarrow.find(character) != std::string_view::npos) return 6;
    if (beyond_ascii || (character >= 'A' && character <= 'Z')) return 10;
    return 8;
}

}  // namespace

std::optional<double> number_in(std::string_view text) {
    const std::ptrdiff_t digits = std::count_if(text.begin(), text.end(), is_digit);
    if (digits < 1 || digits > kExactDigits) return std::nullopt;
    if (text.find_first_not_of("-.0123456789") != std::string_view::npos) return std::nullopt;
    double number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number + 0.0;  // which takes the sign off "-0"
}

std::string cell_text(std::string_view text) {
    std::string safe;
    for (; !text.empty(); text.remove_prefix(1)) {
        // An underscore that only looks like the start of a control character is spelled like one.
        const std::string_view piece = begins_as_escape(text) ? "_x005F_" : text.substr(0, 1);
        if (safe.size() + piece.size() > kLongestText) break;
        safe += piece;
    }
    std::replace(safe.begin(), safe.end(), '\0', ' ');
    return to_utf8(safe);
}

int cell_width(std::string_view text) {
    return std::accumulate(text.begin(), text.end(), 0, [](int width, char character) {
        return width + character_width(character);
    });
}

}  // namespace tessarine
