// The server's side of HTTP/1.1, as far as the management service uses it (RFC 9112).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "sample_network/wire/connection_server.h"

namespace tessarine::sample {

struct HttpRequest {
    std::string method;
    std::string path;
    std::string content_type;
    std::string authorization;
    std::string body;
};

/// `challenge` is the value of WWW-Authenticate.
struct HttpAnswer {
    int status = 200;
    std::optional<std::string> challenge;
    std::string_view content_type;
    std::string body;
    bool closes_connection = false;
};

/// Reads requests one after the other off a connection.
class HttpReader {
  public:
    explicit HttpReader(Connection& connection) : connection_(connection) {}

    /// Raises ConnectionEnded at the end of the connection, and for a request that is malformed or
    /// too large.
    HttpRequest read();

  private:
    void read_more();

    Connection& connection_;
    std::string buffer_;
};

std::string http_text(const HttpAnswer& answer);

}  // namespace tessarine::sample
