// Where a host's management service is.
#pragma once

#include <string>

namespace tessarine {

struct HostAddress {
    std::string host;
    int port;

    std::string url() const;
};

/// Letters, digits, "-", "." and "_", or an IPv6 address without its brackets: anything else could
/// lead the URL elsewhere and raises a RuntimeError.
HostAddress make_host_address(const std::string& host, int port);

}  // namespace tessarine
