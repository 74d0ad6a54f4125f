// Names of hosts and groups as the network tells them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

/// `text` (UTF-8) in the console's code page, when a host or a group can have that name: up to
/// browse_limits::kName bytes, without control characters, blanks at its ends, the characters
/// that no Windows name has, and those that the code page hasn't.
std::optional<std::string> browsed_name(std::string_view text);

/// A comment in one line and cut to browse_limits::kComment.
std::string browsed_comment(std::string_view text);

/// A computer and the group, workgroup or domain, that it belongs to.
struct BrowsedComputer {
    std::string name;
    std::string group;
};

/// Reads the text of an element pub:Computer: "NAME/Workgroup:GROUP" or "NAME/Domain:GROUP"
/// ([MS-PBSD] 2.2.1.2), with either slash. A computer of no group, "NAME/NotJoined", is none.
std::optional<BrowsedComputer> browsed_computer(std::string_view text);

}  // namespace tessarine
