// The event source over WS-Management (DSP0226 and MS-WSMV): HTTP with message encryption, or TLS.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "adapters/wsman/sign_in/encrypted_message.h"
#include "adapters/wsman/wsman_event_result.h"
#include "platform/event_source.h"

namespace tessarine {

struct WsmanOptions {
    int port = 5985;
    /// For TLS, where nothing listens at `port`.
    int tls_port = 5986;
    /// A file of certificates (PEM) that are trusted instead of the system's authorities.
    std::string authorities;
    /// What a host may take for one request. A host that is silent for little longer is given up.
    std::chrono::seconds operation_timeout{50};
    /// For the records between the two walks; empty means $TMPDIR, or /tmp.
    std::string temporary_folder;
    QueryLimits query_limits;
    /// Called several times a second while a call waits for the network, so that a window can
    /// repaint. It may raise; the connection is of no more use then.
    std::function<void()> while_waiting;
    /// For hosts that can't read the form that MS-WSMV demands.
    PartHeaderIndent part_header_indent = PartHeaderIndent::Tab;
};

/// Signs in with Kerberos or NTLM. Every message is encrypted. A query is asked once, and one after
/// the other: the records of its first walk are kept in a temporary file for the next ones.
class WsmanEventSource final : public EventSource {
  public:
    explicit WsmanEventSource(WsmanOptions options) : options_(std::move(options)) {}

    std::unique_ptr<EventService> connect_server(
        const std::string& host, const std::string& name_space,
        const std::optional<Credentials>& credentials) override;

  private:
    WsmanOptions options_;
};

}  // namespace tessarine
