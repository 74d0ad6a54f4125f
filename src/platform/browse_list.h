// The browse list of the Windows network: its groups (workgroups and domains) and their servers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

/// One entry of the browse list, its texts in the console's 8-bit code page. What the network
/// doesn't tell is 0 or empty.
struct ServerInfo {
    std::uint32_t platform_id = 0;
    std::string name;
    std::uint32_t major_version = 0;
    std::uint32_t minor_version = 0;
    std::uint32_t type = 0;  ///< a mask of SV_TYPE_... ([MS-SRVS] 2.2.2.7)
    std::string comment;
};

/// What the network tells, or why it tells nothing.
struct BrowseAnswer {
    std::uint32_t error = 0;  ///< an error number of Windows ([MS-ERREF] 2.2); 0 for success
    std::string words;        ///< of a failure: what is the matter, and what to do about it
    std::vector<ServerInfo> entries;  ///< none after a failure
};

inline constexpr std::uint32_t kErrorAccessDenied = 5;
inline constexpr std::uint32_t kErrorMoreData = 234;
inline constexpr std::uint32_t kErrorServerUnavailable = 1722;
inline constexpr std::uint32_t kErrorNoBrowserServersFound = 6118;

/// Both wait for the network a few seconds at the most, and raise nothing.
class BrowseList {
  public:
    virtual ~BrowseList() = default;

    /// The groups that can be seen from this machine.
    virtual BrowseAnswer groups() = 0;
    /// The servers of a group, in any case of its letters; with no name, of this machine's own.
    virtual BrowseAnswer servers(const std::string& group) = 0;
};

}  // namespace tessarine
