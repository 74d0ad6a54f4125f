// Finding a text in the bytes of a log file.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tessarine {

/// Case plays no part, and each "|" of the bytes is taken for a blank, so that a text with a "|" is
/// found nowhere. Neither is one with a line end.
class TextFinder {
  public:
    static constexpr std::size_t kNowhere = std::string_view::npos;

    explicit TextFinder(std::string_view text);

    /// Where the text begins first in `bytes` at or after `from`.
    std::size_t find(std::string_view bytes, std::size_t from) const;

  private:
    /// One of the two characters of the text that are looked at first. With the bits of `mask` set,
    /// all bytes that stand for the character equal `key`; a few others may, too.
    struct Probe {
        std::size_t offset = 0;
        char mask = 0;
        char key = 0;
    };

    Probe probe_at(std::size_t offset) const;
    bool is_at(const char* place) const;

    std::array<char, 256> folded_{};  // what a byte of a file is compared as
    std::string text_;                // folded
    Probe first_;
    Probe second_;
    bool findable_;
};

}  // namespace tessarine
