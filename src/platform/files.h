// Files and folders. Paths are in the console's 8-bit code page with the platform's separator.
#pragma once

#include <chrono>
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
    /// Writes `bytes` behind all that was written before and sees them onto the disk, whole or not
    /// at all: of a failure nothing stays, in the file or in a buffer.
    virtual void write_whole(std::string_view bytes) = 0;
    /// Keeps room for so many bytes behind the end of the file, so that a disk that fills up takes
    /// them still. Has no effect where the file system can't.
    virtual void reserve(std::size_t bytes) = 0;
    /// Flushes, and sees all that was written onto the disk.
    virtual void sync() = 0;
    /// Flushes and closes. Closing a file that is closed has no effect.
    virtual void close() = 0;
};

enum class OpenFor { Reading, Writing, Appending };

/// Held as long as it lives.
class FileLock {
  public:
    virtual ~FileLock() = default;
};

class Files {
  public:
    virtual ~Files() = default;

    /// Whether there is a file (not a folder) or a folder of that name. Where that can't be found
    /// out, a RuntimeError says why: this and the next one never take it for "missing".
    virtual bool file_exists(const std::string& path) = 0;
    virtual bool folder_exists(const std::string& path) = 0;

    /// What `name` is called in `folder`: as it stands when there is such a file or folder, else by
    /// a name that differs from it in case alone, and as it stands when there is none either.
    virtual std::string present_name(const std::string& folder, const std::string& name) = 0;

    /// Makes the last component of `path`, readable by its owner alone.
    virtual void create_folder(const std::string& path) = 0;

    /// Opens a file. Writing empties it, writing and appending create it when it is missing,
    /// readable by its owner alone; reading does not. Appending ends a last line that was cut off.
    virtual std::unique_ptr<File> open(const std::string& path, OpenFor purpose) = 0;

    /// Makes a file that is readable by its owner alone, and opens it for writing; null when there
    /// is something of that name already.
    virtual std::unique_ptr<File> create(const std::string& path) = 0;

    /// Puts a file with these bytes in the place of `path`, which at any time is the old or the new
    /// one, on the disk as well.
    virtual void replace(const std::string& path, std::string_view bytes) = 0;

    /// Copies the bytes of `from` to `to`, which is replaced in the same way.
    virtual void copy(const std::string& from, const std::string& to) = 0;

    /// Locks a file or a folder against all others who lock it, in this program and in others; null
    /// when somebody else holds it for longer than `patience`. Has no effect where the file system
    /// can't.
    virtual std::unique_ptr<FileLock> lock(const std::string& path,
                                           std::chrono::milliseconds patience) = 0;

    /// Raises "Permission denied" for a folder that belongs to another user, or that others may
    /// write to.
    virtual void demand_own_folder(const std::string& path) = 0;

    /// Deletes a file, also one that is read-only.
    virtual void remove(const std::string& path) = 0;
};

}  // namespace tessarine
