// The lines of a file that hold a text.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "search/text_finder.h"

namespace tessarine {

/// Looks through blocks of whole lines, and for the bounds of a line only where the text was found.
/// CR LF, a lone CR and a lone LF each end a line; the empty text is found in every line that isn't
/// empty. The buffer is kept from file to file.
class MatchingLines {
  public:
    explicit MatchingLines(std::string_view text);

    /// Begins with the first line of a file, which must outlive the calls of `next`.
    void start(File& file);
    /// Gives the next line that holds the text, without its end; false at the end of the file. The
    /// view holds until the next call. Errors of the file pass through.
    bool next(std::string_view& line);

  private:
    bool read_block();

    TextFinder finder_;
    std::vector<char> buffer_;
    File* file_ = nullptr;
    std::size_t position_ = 0;   // of the first line that is not searched yet
    std::size_t lines_end_ = 0;  // behind the last whole line
    std::size_t end_ = 0;        // behind the last byte read
    bool file_ended_ = false;
};

}  // namespace tessarine
