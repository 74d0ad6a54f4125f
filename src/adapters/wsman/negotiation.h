// The initiator's side of a sign-in: SPNEGO (RFC 4178) with NTLM.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "adapters/wsman/gss_handles.h"
#include "platform/event_source.h"

namespace tessarine {

/// Makes the tokens that sign a user in at a host. Only NTLM is offered: a Kerberos context wants
/// another seal.
class Negotiation {
  public:
    /// Without credentials, or with an empty user name, as the user who runs the console. Raises a
    /// RuntimeError when there are no such credentials or the system lacks NTLM.
    Negotiation(const std::string& host, const std::optional<Credentials>& credentials);

    /// The next token for the host after its `token`, which is empty at first; an empty one when
    /// nothing is left to send. Raises a RuntimeError when the host is not to be trusted or
    /// refuses.
    std::string next_token(std::string_view token);

    bool is_complete() const { return complete_; }

    /// The context, once complete; it lives as long as this object.
    gss_ctx_id_t context() const { return context_.get(); }

  private:
    void acquire_for(const Credentials& credentials);
    void acquire_own();
    void allow_only_ntlm();

    GssName target_;
    GssCredential credential_;
    GssContext context_;
    bool complete_ = false;
};

}  // namespace tessarine
