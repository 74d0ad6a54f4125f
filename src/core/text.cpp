#include "core/text.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr std::size_t kWord = 8;

unsigned char folded(char character) {
    return lower_case(static_cast<unsigned char>(character));
}

std::string mapped(std::string_view text, unsigned char (*map)(unsigned char)) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [map](char c) { return static_cast<char>(map(static_cast<unsigned char>(c))); });
    return result;
}

}  // namespace

bool same_text(std::string_view left, std::string_view right) {
    if (left == right) return true;  // as it mostly is where two texts are equal at all
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [](char a, char b) { return folded(a) == folded(b); });
}

int compare_text(std::string_view left, std::string_view right) {
    const std::size_t common = std::min(left.size(), right.size());
    std::size_t i = 0;
    // Texts of one kind of event begin alike.
    for (; i + kWord <= common; i += kWord)
        if (std::memcmp(left.data() + i, right.data() + i, kWord) != 0) break;
    for (; i < common; ++i)
        if (folded(left[i]) != folded(right[i])) return folded(left[i]) < folded(right[i]) ? -1 : 1;
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

std::string lower_text(std::string_view text) {
    return mapped(text, lower_case);
}

std::string upper_text(std::string_view text) {
    return mapped(text, upper_case);
}

std::string replace_text(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    while (text.size() >= from.size() && !from.empty()) {
        const auto found = std::search(text.begin(), text.end(), from.begin(), from.end(),
                                       [](char a, char b) { return folded(a) == folded(b); });
        if (found == text.end()) break;
        const auto before = static_cast<std::size_t>(std::distance(text.begin(), found));
        result.append(text.substr(0, before)).append(to);
        text.remove_prefix(before + from.size());
    }
    return result.append(text);
}

std::string without_controls(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
    return line;
}

std::string padded(int number, int width) {
    const std::string digits = std::to_string(number);
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    return digits.size() < wanted ? std::string(wanted - digits.size(), '0') + digits : digits;
}

}  // namespace tessarine
