// The files of the machine, by POSIX calls.
#pragma once

#include "adapters/system/folder_names.h"
#include "platform/files.h"

namespace tessarine {

/// "\" and "/" both separate in the paths that it is given. Files and folders that it makes are
/// their owner's alone, whatever the umask.
class LocalFiles final : public Files {
  public:
    bool file_exists(const std::string& path) override;
    bool folder_exists(const std::string& path) override;
    std::string present_name(const std::string& folder, const std::string& name) override;
    void create_folder(const std::string& path) override;
    std::unique_ptr<File> open(const std::string& path, OpenFor purpose) override;
    /// The new file takes the place of the old one in one step, when it is complete.
    void copy(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;

  private:
    FolderNames names_;
};

}  // namespace tessarine
