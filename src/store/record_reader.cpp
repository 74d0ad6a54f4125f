#include "store/record_reader.h"

#include <cstring>

namespace tessarine {
namespace {

// Small enough to stay in the processor's cache, large enough to make the calls cheap.
constexpr std::size_t kBlock = std::size_t{256} << 10;

}  // namespace

RecordReader::RecordReader(File& file) : file_(file), buffer_(kBlock) {}

bool RecordReader::next(std::string_view& line) {
    std::size_t searched = start_;
    for (;;) {
        const std::size_t line_end = find_line_end(searched);
        // A CR at the very end of what is known may have its LF still to come.
        const bool complete =
            line_end < end_ && (file_ended_ || buffer_[line_end] == '\n' || line_end + 1 < end_);
        if (complete || file_ended_) {
            if (start_ == end_) return false;
            line = std::string_view(buffer_.data() + start_, line_end - start_);
            start_ = line_end;
            if (start_ < end_ && buffer_[start_++] == '\r' && start_ < end_ &&
                buffer_[start_] == '\n')
                ++start_;
            return true;
        }
        const std::size_t kept = line_end - start_;
        if (!refill()) file_ended_ = true;
        searched = start_ + kept;
    }
}

// The position of the first CR or LF at or behind `from`, or the end of what is known.
std::size_t RecordReader::find_line_end(std::size_t from) const {
    const char* begin = buffer_.data() + from;
    const auto* feed = static_cast<const char*>(std::memchr(begin, '\n', end_ - from));
    const std::size_t length =
        feed != nullptr ? static_cast<std::size_t>(feed - begin) : end_ - from;
    const auto* carriage = static_cast<const char*>(std::memchr(begin, '\r', length));
    return carriage != nullptr ? from + static_cast<std::size_t>(carriage - begin) : from + length;
}

// Moves what is left to the front and reads behind it; false at the end of the file.
bool RecordReader::refill() {
    std::memmove(buffer_.data(), buffer_.data() + start_, end_ - start_);
    end_ -= start_;
    start_ = 0;
    if (buffer_.size() - end_ < kBlock / 2) buffer_.resize(buffer_.size() * 2);
    const std::size_t size = file_.read(buffer_.data() + end_, buffer_.size() - end_);
    end_ += size;
    return size != 0;
}

}  // namespace tessarine
