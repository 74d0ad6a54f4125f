// Files and folders. Paths are in the console's 8-bit code page with the platform's separator.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tessarine {

/// An open file. Every call raises a RuntimeError when the system refuses it; a file that is
/// destroyed while open is closed without a word.
class File {
  public:
    virtual ~File() = default;

    /// Reads up to `size` bytes into `buffer`; returns the number read, 0 at the end of the file.
    virtual std::size_t read(char* buffer, std::size_t size) = 0;
    /// Writes all of `bytes`; they may wait in a buffer until `flush` or `close`.
    virtual void write(std::string_view bytes) = 0;
    virtual void flush() = 0;
    /// Flushes and closes. Closing a file that is closed has no effect.
    virtual void close() = 0;
};

enum class OpenFor { Reading, Writing, Appending };

class Files {
  public:
    virtual ~Files() = default;

    /// Whether there is a file (not a folder) or a folder of that name.
    virtual bool file_exists(const std::string& path) = 0;
    virtual bool folder_exists(const std::string& path) = 0;

    /// What `name` is called in `folder`: as it stands when there is such a file or folder, else by
    /// a name that differs from it in case alone, and as it stands when there is none either.
    virtual std::string present_name(const std::string& folder, const std::string& name) = 0;

    /// Makes the last component of `path`, readable by its owner alone.
    virtual void create_folder(const std::string& path) = 0;

    /// Opens a file. Writing empties it, writing and appending create it when it is missing,
    /// readable by its owner alone; reading does not.
    virtual std::unique_ptr<File> open(const std::string& path, OpenFor purpose) = 0;

    /// Copies the bytes of `from` to `to`, which is replaced.
    virtual void copy(const std::string& from, const std::string& to) = 0;

    /// Deletes a file, also one that is read-only.
    virtual void remove(const std::string& path) = 0;
};

}  // namespace tessarine
