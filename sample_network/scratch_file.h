// Files and folders that exist no longer than they are needed.
#pragma once

#include <filesystem>
#include <string_view>

namespace tessarine::sample {

/// A new file of the user alone in the folder for temporary files, removed with this object.
class ScratchFile {
  public:
    /// Raises a std::system_error.
    explicit ScratchFile(std::string_view text);
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile();

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// The same for a folder and all that is in it.
class ScratchFolder {
  public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace tessarine::sample
