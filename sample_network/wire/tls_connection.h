// TLS (RFC 8446) of a host: its certificate at the port, and the connections through it.
#pragma once

#include <openssl/ssl.h>

#include <functional>
#include <memory>
#include <string>

#include "sample_network/wire/certificate_authority.h"
#include "sample_network/wire/connection_server.h"

namespace tessarine::sample {

/// What all connections to one port have in common.
class TlsServer {
  public:
    /// Raises a std::runtime_error.
    explicit TlsServer(const TlsIdentity& identity);

    SSL_CTX* context() const { return context_.get(); }

    /// What ties a sign-in to connections with this certificate.
    const std::string& channel_binding() const { return channel_binding_; }

  private:
    std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context_;
    std::string channel_binding_;
};

class TlsConnection final : public Connection {
  public:
    /// Makes the handshake over `carrier`, which outlives this connection, as `server` does. Raises
    /// ConnectionEnded when the client doesn't like it.
    TlsConnection(Connection& carrier, const TlsServer& server);

    std::size_t read_some(std::span<char> buffer, std::chrono::milliseconds patience) override;
    void write(std::string_view bytes) override;
    void pause(std::chrono::milliseconds duration) const override { carrier_.pause(duration); }

  private:
    // Calls `step` until it has done something; returns its result.
    int run(const std::function<int()>& step, std::chrono::milliseconds patience);
    void send_waiting();
    void take_more(std::chrono::milliseconds patience);

    Connection& carrier_;
    std::unique_ptr<SSL, decltype(&SSL_free)> tls_;
    BIO* incoming_;  // both are of tls_
    BIO* outgoing_;
};

}  // namespace tessarine::sample
