#include "search/matching_lines.h"

#include <cstring>

#include "search/line_bounds.h"

namespace tessarine {
namespace {

// Small enough to stay in the processor's cache, large enough to make the calls cheap.
constexpr std::size_t kBlock = std::size_t{256} << 10;

}  // namespace

MatchingLines::MatchingLines(std::string_view text) : finder_(text), buffer_(kBlock) {}

void MatchingLines::start(File& file) {
    file_ = &file;
    position_ = lines_end_ = end_ = 0;
    file_ended_ = false;
}

bool MatchingLines::next(std::string_view& line) {
    do {
        const std::string_view lines(buffer_.data(), lines_end_);
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

// Moves the beginning of a line to the front and reads on to the end of a line at least; false when
// the file has ended.
bool MatchingLines::read_block() {
    if (file_ended_) return false;
    end_ -= lines_end_;
    std::memmove(buffer_.data(), buffer_.data() + lines_end_, end_);
    position_ = lines_end_ = 0;
    while (lines_end_ == 0 && !file_ended_) {
        if (buffer_.size() - end_ < kBlock / 2) buffer_.resize(buffer_.size() * 2);
        const std::size_t size = file_->read(buffer_.data() + end_, buffer_.size() - end_);
        const std::string_view fresh(buffer_.data() + end_, size);
        const std::size_t begun = line_begin(fresh, size);
        if (begun > 0) lines_end_ = end_ + begun;
        end_ += size;
        file_ended_ = size == 0;
    }
    if (file_ended_) lines_end_ = end_;
    return true;
}

}  // namespace tessarine
