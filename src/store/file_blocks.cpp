#include "store/file_blocks.h"

#include <cstring>

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
    std::memmove(buffer_.data(), buffer_.data() + used, size_);
    if (buffer_.size() - size_ < kBlock / 2) buffer_.resize(buffer_.size() * 2);
    const std::size_t count = file_->read(buffer_.data() + size_, buffer_.size() - size_);
    size_ += count;
    ended_ = count == 0;
}

}  // namespace tessarine
