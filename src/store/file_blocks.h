// Reading a file block by block.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace tessarine {

/// The most of a line that is kept; the rest of a longer one is passed over up to its end. One that
/// is longer by less than a block may come whole.
inline constexpr std::size_t kLongestLine = std::size_t{16} << 20;

/// A buffer that is kept from file to file, and grows for a line that doesn't fit.
class FileBlocks {
  public:
    FileBlocks();

    /// Begins with the first byte of a file, which must outlive the calls of `read_on`.
    void start(File& file);

    /// What is known of the file; the view holds until the next call of `read_on`.
    std::string_view bytes() const { return {buffer_.data(), size_}; }
    /// Whether that is all up to the end of the file.
    bool ended() const { return ended_; }
    /// Gives up the first `used` bytes and reads more after the others, which are of a line without
    /// its end, and of which no more than kLongestLine are kept. Errors of the file pass through.
    void read_on(std::size_t used);

  private:
    void pass_over_line();

    std::vector<char> buffer_;
    File* file_ = nullptr;
    std::size_t size_ = 0;
    bool ended_ = false;
};

}  // namespace tessarine
