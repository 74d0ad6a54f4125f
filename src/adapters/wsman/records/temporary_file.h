// A file without a name: nobody else can open it, and it is gone when its owner is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

class TemporaryFile {
  public:
    /// In `folder`; where that is empty in $TMPDIR, and where that is unset in /tmp.
    explicit TemporaryFile(const std::string& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::uint64_t size() const { return size_; }

    /// Bytes that are left for the user on the disk; without end where the system can't tell.
    std::uint64_t free_space() const;

    /// Raises a RuntimeError when not all of `bytes` can be written, such as on a full disk.
    void append(std::string_view bytes);

    /// Up to `count` bytes from `offset` on, appended to `target`; none after the end.
    void read(std::uint64_t offset, std::size_t count, std::string& target) const;

  private:
    int descriptor_;
    std::uint64_t size_ = 0;
};

}  // namespace tessarine
