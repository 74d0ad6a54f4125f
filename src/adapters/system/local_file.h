// One open file of the system.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/files.h"

namespace tessarine {

/// Owns a file descriptor. Writes are gathered in a buffer and handed over in large blocks. A write
/// that raises has taken none of its bytes; what earlier ones left in the buffer stays there.
class LocalFile final : public File {
  public:
    explicit LocalFile(int descriptor) : descriptor_(descriptor) {}
    /// Writes what waits, and passes over a failure: who wants to know closes the file.
    ~LocalFile() override;
    LocalFile(const LocalFile&) = delete;
    LocalFile& operator=(const LocalFile&) = delete;

    std::size_t read(char* buffer, std::size_t size) override;
    void write(std::string_view bytes) override;
    void flush() override;
    void write_whole(std::string_view bytes) override;
    void reserve(std::size_t bytes) override;
    void sync() override;
    void close() override;

  private:
    int write_out();
    int release();

    int descriptor_;
    off_t read_ = 0;
    off_t size_ = 0;  // as far as is known
    std::string waiting_;
};

/// Opens a plain file; `path` is one of the system. Raises a RuntimeError for anything else that
/// has the name, such as a folder or a pipe, without waiting for a peer.
std::unique_ptr<LocalFile> open_local_file(const std::string& path, OpenFor purpose);

/// Makes a file of its owner's alone where nothing has the name, a link neither; else null.
std::unique_ptr<LocalFile> create_local_file(const std::string& path);

}  // namespace tessarine
