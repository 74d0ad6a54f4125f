// The message seal of an established security context, for either side of the connection.
#pragma once

#include <gssapi/gssapi.h>

#include <string>
#include <string_view>

#include "adapters/wsman/encrypted_message.h"

namespace tessarine {

/// Seals with an NTLM context (MS-NLMP, "Session Security Details"), alone or under SPNEGO. A
/// Kerberos context needs the calls that take the header apart from the data, gss_wrap_iov and
/// gss_unwrap_iov: Windows can't read what gss_wrap makes of it.
class SecuritySeal final : public MessageSeal {
  public:
    /// `context` stays the caller's and outlives the seal.
    explicit SecuritySeal(gss_ctx_id_t context) : context_(context) {}

    SealedMessage seal(std::string_view plain) override;
    std::string unseal(std::string_view token, std::size_t header_length) override;

  private:
    gss_ctx_id_t context_;
};

}  // namespace tessarine
