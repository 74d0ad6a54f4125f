// The files of a folder by a pattern of names.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

class DirectoryListing {
  public:
    virtual ~DirectoryListing() = default;

    struct Entry {
        std::string name;    ///< without the folder, 8-bit code page
        std::uint64_t size;  ///< in bytes
    };

    /// The plain files of `folder` whose names end in `ending`, ignoring case, in the order in
    /// which the system lists them. Raises a RuntimeError when the folder can't be listed.
    virtual std::vector<Entry> files_ending_in(const std::string& folder,
                                               const std::string& ending) = 0;
};

}  // namespace tessarine
