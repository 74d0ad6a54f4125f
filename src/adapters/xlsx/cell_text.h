// What a text of the console becomes in a cell.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

/// The number that a whole text is: digits, 15 at most, with a minus in front or a point among
/// them. Larger ones would lose digits, and any other spelling is a text to a reader.
std::optional<double> number_in(std::string_view text);

/// The text in UTF-8 as the file has it. A cell holds 32,767 characters, so a longer text is cut
/// there; a zero character, which it can't hold, becomes a blank.
std::string cell_text(std::string_view text);

/// About how many pixels wide the text is in the font of a new workbook, Calibri with 11 points, at
/// 96 to the inch; a little more rather than less.
int cell_width(std::string_view text);

}  // namespace tessarine
