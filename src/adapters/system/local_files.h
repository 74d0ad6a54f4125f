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
    std::unique_ptr<File> create(const std::string& path) override;
    void replace(const std::string& path, std::string_view bytes) override;
    void copy(const std::string& from, const std::string& to) override;
    std::unique_ptr<FileLock> lock(const std::string& path,
                                   std::chrono::milliseconds patience) override;
    void demand_own_folder(const std::string& path) override;
    void remove(const std::string& path) override;

  private:
    FolderNames names_;
};

}  // namespace tessarine
