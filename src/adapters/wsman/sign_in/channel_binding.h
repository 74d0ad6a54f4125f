// What ties a sign-in to the TLS connection that it is made over.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// The binding "tls-server-end-point" (RFC 5929, section 4) for a server's certificate (PEM): its
/// hash, by the hash function of its signature, SHA-256 instead of MD5 and SHA-1. Raises a
/// RuntimeError when the text is no certificate.
std::string server_end_point_binding(std::string_view certificate);

}  // namespace tessarine
