// The lines of a file that hold a text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/record_reader.h"

namespace tessarine {

/// A line holds the text when it occurs anywhere in it, without regard to case and with each "|" of
/// the line taken for a blank; an empty line holds nothing. So a text with a "|" is found nowhere,
/// and the empty text in every line that isn't empty.
class MatchingLines {
  public:
    explicit MatchingLines(std::string_view text);

    /// Begins with the first line of a file, which must outlive the calls of `next`.
    void start(File& file) { reader_.emplace(file); }
    /// Gives the next line that holds the text, without its end; false at the end of the file. The
    /// view holds until the next call. Errors of the file pass through.
    bool next(std::string_view& line);

  private:
    std::string text_;
    std::optional<RecordReader> reader_;
};

}  // namespace tessarine
