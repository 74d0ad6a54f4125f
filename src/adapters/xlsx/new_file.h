// A file of an own name in the user's temporary folder.
#pragma once

#include <cstdint>
#include <string>

namespace tessarine {

/// Raises the RuntimeError that says what the number `error` of <cerrno> means for a workbook.
[[noreturn]] void raise_workbook_error(int error);

/// Makes the file, empty and for its owner alone, and removes it again unless it is kept. Names are
/// in UTF-8.
class NewFile {
  public:
    /// `ending` is what the name ends in, as ".xlsx". Raises a RuntimeError when there is no way to
    /// make the file, or its path isn't one that the console can hold.
    explicit NewFile(const std::string& ending);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    const std::string& folder() const { return folder_; }
    const std::string& path() const { return path_; }
    void keep() { kept_ = true; }

    /// Raises "Disk full" unless the disk has room for so many bytes.
    void check_room(std::uintmax_t bytes) const;

  private:
    std::string folder_;
    std::string path_;
    bool kept_ = false;
};

}  // namespace tessarine
