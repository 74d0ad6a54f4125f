// Text handling of the console, in its 8-bit code page.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// Whether two texts are equal as a whole, without regard to case.
bool same_text(std::string_view left, std::string_view right);

/// Negative, zero or positive as `left` stands before, with or after `right`, without regard to
/// case, character by character.
int compare_text(std::string_view left, std::string_view right);

std::string lower_text(std::string_view text);
std::string upper_text(std::string_view text);

/// Replaces every occurrence of `from`, found without regard to case.
std::string replace_text(std::string_view text, std::string_view from, std::string_view to);

/// `text` with "?" for each control character, line ends included.
std::string without_controls(std::string_view text);

/// The digits of `number`, with zeros in front up to `width`.
std::string padded(int number, int width);

}  // namespace tessarine
