#include "store/file_blocks.h"

#include <algorithm>
#include <cstring>

#include "store/line_bounds.h"

namespace tessarine {
namespace {

// Small enough to stay in the processor's cache, large enough to make the calls cheap.
constexpr std::size_t kBlock = std::size_t{256} << 10;

}  // namespace

FileBlocks::FileBlocks() : buffer_(kBlock) {}

void FileBlocks::start(File& file) {
    file_ = &file;
    size_ = 0;
    ended_ = false;
}

void FileBlocks::read_on(std::size_t used) {
    size_ -= used;
    if (used != 0) std::memmove(buffer_.data(), buffer_.data() + used, size_);
    // A CR at the end has ended the line, and may have its LF still to come.
    if (size_ > kLongestLine && !is_line_end(buffer_[size_ - 1])) return pass_over_line();
    if (buffer_.size() - size_ < kBlock / 2) buffer_.resize(buffer_.size() * 2);
    const std::size_t room = std::min(buffer_.size(), kLongestLine + kBlock) - size_;
    const std::size_t count = file_->read(buffer_.data() + size_, room);
    size_ += count;
    ended_ = count == 0;
}

void FileBlocks::pass_over_line() {
    size_ = kLongestLine;
    buffer_.resize(std::max(buffer_.size(), kLongestLine + kBlock));
    char* const next = buffer_.data() + size_;
    for (;;) {
        const std::size_t count = file_->read(next, kBlock);
        const std::size_t end = line_end({next, count}, 0);
        ended_ = count == 0;
        if (end == count && !ended_) continue;
        std::memmove(next, next + end, count - end);
        size_ += count - end;
        return;
    }
}

}  // namespace tessarine
