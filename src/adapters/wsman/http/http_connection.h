// HTTP POST over one TCP connection that is never replaced once a security context belongs to it.
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/wsman/basics/host_address.h"
#include "adapters/wsman/http/http_answer.h"
#include "curl/curl_transfer.h"

namespace tessarine {

/// How long a host may be silent, and how long one whole exchange may take.
struct HttpPatience {
    std::chrono::seconds silence;
    std::chrono::seconds whole;
};

class HttpConnection {
  public:
    /// Connects with the first post, over TLS where the address says so: version 1.2 or later, and
    /// with a certificate for the host's name from one of the system's authorities, or from those
    /// in the file `authorities` (PEM) where that is not empty.
    explicit HttpConnection(const HostAddress& address, const std::string& authorities = {});
    HttpConnection(const HttpConnection&) = delete;
    HttpConnection& operator=(const HttpConnection&) = delete;

    /// Sends `body` with the header lines `headers` and takes the answer, of whatever status, which
    /// holds until the next post. Raises a RuntimeError where there is none: no such host, refused,
    /// silent, lost, too large. `while_waiting`, where there is one, is called several times a
    /// second until the answer is there.
    const HttpAnswer& post(const std::vector<std::string>& headers, std::string_view body,
                           HttpPatience patience, const std::function<void()>& while_waiting);

    /// Lets the next post make a new connection where the host has closed this one: for as long as
    /// no sign-in belongs to it.
    void allow_replacement() { answered_ = false; }

    /// The certificate (PEM) that the host showed in its TLS handshake; holds after a post until
    /// the next one.
    std::string server_certificate() const;

  private:
    void set_fixed_options();
    std::string failure_text(CURLcode code) const;
    [[noreturn]] void fail(CURLcode code) const;
    std::string connect_failure_text(int number) const;

    // libcurl's callbacks; `connection` is this object.
    static std::size_t on_header(char* bytes, std::size_t size, std::size_t count,
                                 void* connection);
    static std::size_t on_body(char* bytes, std::size_t size, std::size_t count, void* connection);
    static curl_socket_t on_open_socket(void* connection, curlsocktype purpose,
                                        curl_sockaddr* address);

    HostAddress address_;
    CurlTransfer transfer_;
    CURL* easy_;  // of the transfer
    HttpAnswer answer_;
    std::size_t header_bytes_ = 0;
    bool too_large_ = false;
    bool answered_ = false;
};

}  // namespace tessarine
