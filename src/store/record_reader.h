// Reading a text file of the console line by line.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/files.h"
#include "store/file_blocks.h"

namespace tessarine {

/// CR LF, a lone CR and a lone LF each end a line; a text after the last of them is a line too.
/// Errors of the file pass through.
class RecordReader {
  public:
    explicit RecordReader(File& file) { blocks_.start(file); }

    /// Gives the next line without its end; false at the end of the file. The view holds until the
    /// next call.
    bool next(std::string_view& line);

  private:
    FileBlocks blocks_;
    std::size_t start_ = 0;  // first byte that is not given out yet
};

}  // namespace tessarine
