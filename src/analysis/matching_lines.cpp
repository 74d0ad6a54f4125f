#include "analysis/matching_lines.h"

#include <algorithm>

#include "core/text.h"

namespace tessarine {

MatchingLines::MatchingLines(std::string_view text) : text_(lower_text(text)) {}

bool MatchingLines::next(std::string_view& line) {
    // KEEP(search-takes-bars-for-blanks): a text runs over the border of two fields where it has a
    // blank, and one with a "|" is found nowhere. Searching the line as it stands looks right.
    while (reader_->next(line)) {
        std::string folded = lower_text(line);
        std::replace(folded.begin(), folded.end(), '|', ' ');
        if (!line.empty() && folded.find(text_) != std::string::npos) return true;
    }
    return false;
}

}  // namespace tessarine
