// The message seal of an established security context, for either side of the connection.
#pragma once

#include <gssapi/gssapi.h>

#include <string>
#include <string_view>

#include "adapters/wsman/sign_in/encrypted_message.h"

namespace tessarine {

/// Seals with an NTLM context (MS-NLMP, "Session Security Details") or a Kerberos context (RFC
/// 4121), alone or under SPNEGO.
class SecuritySeal final : public MessageSeal {
  public:
    /// `context` stays the caller's and outlives the seal. Raises a RuntimeError when it is not
    /// established.
    explicit SecuritySeal(gss_ctx_id_t context);

    SealedMessage seal(std::string_view plain) override;
    std::string unseal(std::string_view token, std::size_t header_length) override;

  private:
    SealedMessage seal_with_kerberos(std::string_view plain);
    std::string unseal_with_kerberos(std::string_view token, std::size_t header_length);

    gss_ctx_id_t context_;
    bool kerberos_;
};

}  // namespace tessarine
