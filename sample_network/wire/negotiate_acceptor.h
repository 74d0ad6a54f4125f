// The host's side of the Negotiate scheme (RFC 4559): tokens in, tokens out, a context in the end.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "adapters/wsman/sign_in/gss_handles.h"

namespace tessarine::sample {

enum class Handshake { GoesOn, Complete, Refused };

class NegotiateAcceptor {
  public:
    struct Step {
        Handshake handshake;
        std::string token;  // with a refusal, what it says to the client
    };

    /// Where `channel` (RFC 5056) is not empty, a sign-in that isn't tied to it is refused.
    explicit NegotiateAcceptor(std::string channel = {}) : channel_(std::move(channel)) {}

    /// Takes the value of an Authorization header. The first token after a complete or refused
    /// handshake begins a new one.
    Step accept(std::string_view authorization);

    /// Null before the handshake is complete.
    gss_ctx_id_t context() const { return complete_ ? context_.get() : GSS_C_NO_CONTEXT; }

  private:
    std::string channel_;
    GssContext context_;
    bool complete_ = false;
};

}  // namespace tessarine::sample
