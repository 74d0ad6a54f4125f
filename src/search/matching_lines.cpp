#include "search/matching_lines.h"

#include <algorithm>

#include "store/line_bounds.h"

namespace tessarine {

void MatchingLines::start(File& file) {
    blocks_.start(file);
    position_ = lines_end_ = 0;
}

bool MatchingLines::next(std::string_view& line) {
    do {
        const std::string_view lines = blocks_.bytes().substr(0, lines_end_);
        while (position_ < lines_end_ && is_line_end(lines[position_])) ++position_;
        const std::size_t found =
            position_ < lines_end_ ? finder_.find(lines, position_) : TextFinder::kNowhere;
        if (found != TextFinder::kNowhere) {
            const std::size_t begin = line_begin(lines, found);
            position_ = line_end(lines, found);
            line = lines.substr(begin, position_ - begin);
            return true;
        }
    } while (read_block());
    return false;
}

// Reads on to the end of a line at least; false when the file has ended.
bool MatchingLines::read_block() {
    if (blocks_.ended()) return false;
    std::size_t used = lines_end_;
    position_ = lines_end_ = 0;
    while (lines_end_ == 0 && !blocks_.ended()) {
        const std::size_t known = std::min(blocks_.bytes().size() - used, kLongestLine);
        blocks_.read_on(used);
        used = 0;
        const std::string_view fresh = blocks_.bytes().substr(known);
        const std::size_t begun = line_begin(fresh, fresh.size());
        if (begun > 0) lines_end_ = known + begun;
    }
    if (blocks_.ended()) lines_end_ = blocks_.bytes().size();
    return true;
}

}  // namespace tessarine
