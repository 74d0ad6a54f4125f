// The files of a folder of the machine.
#pragma once

#include "platform/directory_listing.h"

namespace tessarine {

/// A file whose name the 8-bit code page can't hold is left out, since no path could lead to it.
class LocalDirectoryListing final : public DirectoryListing {
  public:
    std::vector<Entry> files_ending_in(const std::string& folder,
                                       const std::string& ending) override;
};

}  // namespace tessarine
