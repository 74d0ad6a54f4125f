// Where a host's management service is.
#pragma once

#include <string>

namespace tessarine {

/// How messages are protected: each sealed by the sign-in, or all by TLS.
enum class Protection { Seal, Tls };

struct HostAddress {
    std::string host;
    int port;
    Protection protection = Protection::Seal;

    std::string url() const;
};

bool is_ip_address(const std::string& host);

/// Letters, digits, "-", "." and "_", or an IPv6 address without its brackets: anything else could
/// lead the URL elsewhere and raises a RuntimeError.
HostAddress make_host_address(const std::string& host, int port,
                              Protection protection = Protection::Seal);

}  // namespace tessarine
