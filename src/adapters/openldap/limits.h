// What a directory may make the console hold, do or wait for, all in one place.
#pragma once

#include <chrono>
#include <cstddef>

namespace tessarine::directory_limits {

/// Children of one object. The host list takes a third of that.
inline constexpr int kChildren = 100'000;
/// Bytes of a child's name in UTF-8; no host has a longer one, so it counts as none.
inline constexpr std::size_t kName = 1000;
/// Bytes of one LDAP message. A child comes in one, with two properties.
inline constexpr std::size_t kMessage = std::size_t{1024} * 1024;
/// Bytes of a server's own words in an error text.
inline constexpr std::size_t kWords = 300;
/// Messages of one walk that are no child: references to other servers, and what else there is.
inline constexpr int kOtherMessages = 10'000;
/// Pages in a row without a child.
inline constexpr int kEmptyPages = 20;
/// Servers of a domain that are tried one after the other.
inline constexpr int kServers = 4;

/// Children asked for at a time: half of what Windows gives at the most.
inline constexpr int kPage = 500;

inline constexpr std::chrono::seconds kConnect{4};
/// One walk from its begin to its end, however fast it trickles.
inline constexpr std::chrono::seconds kWalk{120};

}  // namespace tessarine::directory_limits
