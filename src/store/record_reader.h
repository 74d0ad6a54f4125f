// Reading a text file of the console line by line.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace tessarine {

/// Reads in large blocks through one buffer that it reuses. CR LF, a lone CR and a lone LF each end
/// a line; a text behind the last of them is a line too. Errors of the file pass through.
class RecordReader {
  public:
    explicit RecordReader(File& file);

    /// Gives the next line without its end; false at the end of the file. The view holds until the
    /// next call.
    bool next(std::string_view& line);

  private:
    std::size_t find_line_end(std::size_t from) const;
    bool refill();

    File& file_;
    std::vector<char> buffer_;
    std::size_t start_ = 0;  // first byte that is not given out yet
    std::size_t end_ = 0;    // behind the last byte read
    bool file_ended_ = false;
};

}  // namespace tessarine
