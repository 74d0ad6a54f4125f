// The lines of a file that hold a text.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/files.h"
#include "search/text_finder.h"
#include "store/file_blocks.h"

namespace tessarine {

/// Looks through blocks of whole lines, and for the bounds of a line only where the text was found.
/// CR LF, a lone CR and a lone LF each end a line; the empty text is found in every line that isn't
/// empty.
class MatchingLines {
  public:
    explicit MatchingLines(std::string_view text) : finder_(text) {}

    /// Begins with the first line of a file, which must outlive the calls of `next`.
    void start(File& file);
    /// Gives the next line that holds the text, without its end; false at the end of the file. The
    /// view holds until the next call. Errors of the file pass through.
    bool next(std::string_view& line);

  private:
    bool read_block();

    TextFinder finder_;
    FileBlocks blocks_;
    std::size_t position_ = 0;   // of the first line that is not searched yet
    std::size_t lines_end_ = 0;  // after the last whole line
};

}  // namespace tessarine
