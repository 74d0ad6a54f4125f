// SOAP messages to one host that nobody else can read: each under the seal of the user's sign-in
// (MS-WSMV, "Message Encryption"), or all of them in TLS. One at a time, because the seals of a
// direction follow each other.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/wsman/basics/host_address.h"
#include "adapters/wsman/http/http_connection.h"
#include "adapters/wsman/sign_in/encrypted_message.h"
#include "adapters/wsman/sign_in/negotiation.h"
#include "adapters/wsman/sign_in/security_seal.h"
#include "adapters/wsman/soap/soap_channel.h"
#include "platform/event_source.h"

namespace tessarine {

class SealedChannel final : public SoapChannel {
  public:
    /// `operation_timeout` is what the host itself takes for one request at most. `while_waiting`,
    /// where there is one, is called several times a second during each wait.
    SealedChannel(const HostAddress& address, const std::optional<Credentials>& credentials,
                  std::chrono::seconds operation_timeout, std::function<void()> while_waiting,
                  PartHeaderIndent indent, const std::string& authorities = {});

    /// Connects and signs in. Raises a RuntimeError that says why that is not possible, a
    /// PortClosed where nothing listens.
    void open();

    /// Raises a RuntimeError also for an answer without a seal; every exchange after an error does.
    std::string exchange(std::string_view soap) override;

    /// Waits limits::kRelease at most, and without calling `while_waiting`.
    void send_parting(std::string_view soap) override;

    bool is_usable() const override { return usable_; }
    std::string url() const { return address_.url(); }

  private:
    void knock();
    std::string first_token();
    void finish_sign_in(const std::string& token);
    const HttpAnswer& post_token(const std::string& token);
    std::string channel_binding() const;
    std::string exchange(std::string_view soap, HttpPatience patience,
                         const std::function<void()>& while_waiting);
    std::string open_answer(const HttpAnswer& answer);

    HostAddress address_;
    HttpConnection connection_;
    std::optional<Credentials> credentials_;  // until the sign-in
    std::optional<Negotiation> negotiation_;
    std::optional<SecuritySeal> seal_;  // not with TLS
    std::function<void()> while_waiting_;
    HttpPatience patience_;
    PartHeaderIndent indent_;
    bool usable_ = false;
};

}  // namespace tessarine
