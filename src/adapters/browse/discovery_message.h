// The messages of WS-Discovery (April 2005) and of the metadata that follows, as texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/browse/browsed_name.h"

namespace tessarine {

/// Asks all computers and other devices to show up.
std::string probe_message(const std::string& message_id);
/// Asks where the device with that endpoint address is.
std::string resolve_message(const std::string& message_id, const std::string& endpoint);
/// Asks a device for its metadata (WS-Transfer Get, DPWS 2006).
std::string get_message(const std::string& message_id, const std::string& endpoint);

/// One device that has shown up.
struct DiscoveryMatch {
    std::string endpoint;
    std::string addresses;  ///< URLs with white space between them; may be empty
};

struct DiscoveryAnswer {
    std::string relates_to;  ///< the id of the message that it answers
    std::vector<DiscoveryMatch> matches;
};

/// Reads the answer to a probe or a resolve. Raises a RuntimeError for what is no XML, or has a
/// text of more than browse_limits::kElementText.
DiscoveryAnswer read_discovery_answer(std::string_view datagram);

/// The computer that a device's metadata tell of; nothing when the device is none or belongs to no
/// group. Raises a RuntimeError as above.
std::optional<BrowsedComputer> read_metadata(std::string_view document);

/// The first of the URLs that leads to `address` (IPv4, as digits and dots) by plain HTTP; nothing
/// when none does: a device may speak for itself alone.
std::optional<std::string> url_at(std::string_view urls, const std::string& address);

}  // namespace tessarine
