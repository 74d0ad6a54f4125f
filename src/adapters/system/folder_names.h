// The names in a folder, found whatever their case.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <unordered_map>

namespace tessarine {

/// Reads a folder when it is first asked about, and anew only after the folder has changed. Folders
/// are paths of the system, names are in the console's 8-bit code page.
class FolderNames {
  public:
    /// The name in `folder` that differs from `name` in case alone, the first by its bytes when
    /// there are several; `name` itself when there is none. Raises the errors of a folder that is
    /// there and can't be read.
    std::string in_any_case(const std::string& folder, const std::string& name);

  private:
    using Moment = std::filesystem::file_time_type;
    struct Names {
        Moment changed;
        Moment read;
        std::unordered_map<std::string, std::string> by_lower_case;
    };

    static bool is_current(const Names& names, Moment changed);

    std::map<std::string, Names> folders_;
};

}  // namespace tessarine
