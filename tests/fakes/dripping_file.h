// A file that is read in pieces.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/files.h"

namespace tessarine::fakes {

/// Gives at most `piece` bytes at a time, of bytes that outlive it, as often as `times`.
class DrippingFile final : public File {
  public:
    DrippingFile(std::string_view bytes, std::size_t piece, int times = 1)
        : bytes_(bytes), rest_(bytes), piece_(piece), times_(times) {}

    std::size_t read(char* buffer, std::size_t size) override {
        if (rest_.empty() && --times_ > 0) rest_ = bytes_;
        const std::size_t given = std::min({size, piece_, rest_.size()});
        rest_.copy(buffer, given);
        rest_.remove_prefix(given);
        return given;
    }
    void write(std::string_view) override {}
    void write_whole(std::string_view) override {}
    void reserve(std::size_t) override {}
    void flush() override {}
    void sync() override {}
    void close() override {}

  private:
    std::string_view bytes_;
    std::string_view rest_;
    std::size_t piece_;
    int times_;
};

}  // namespace tessarine::fakes
