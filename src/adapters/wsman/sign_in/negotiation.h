// The initiator's side of a sign-in: SPNEGO (RFC 4178) of Kerberos and NTLM, or NTLM alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "adapters/wsman/sign_in/gss_handles.h"
#include "platform/event_source.h"

namespace tessarine {

/// Makes the tokens that sign a user in at a host.
///
/// Kerberos is offered for a host that is given by name, to a user who has a ticket or is named
/// user@REALM; NTLM to a user named in any way, but not to the running user unless the plug-in
/// knows one. A wrong password is tried once: where Kerberos says so, NTLM is not asked.
class Negotiation {
  public:
    /// Without credentials, or with an empty user name, as the user who runs the console.
    /// `channel` is what ties the sign-in to its TLS connection (RFC 5056), empty for none. Raises
    /// a RuntimeError when there is no way to sign in.
    Negotiation(const std::string& host, const std::optional<Credentials>& credentials,
                std::string channel = {});

    /// The next token for the host after its `token`, which is empty at first; an empty one when
    /// nothing is left to send. Raises a RuntimeError when the host is not to be trusted or
    /// refuses.
    std::string next_token(std::string_view token);

    bool is_complete() const { return complete_; }

    /// The context, once complete; it lives as long as this object.
    gss_ctx_id_t context() const { return context_.get(); }

    /// Why Kerberos is not among the ways that are offered, though it might have been; empty where
    /// there is nothing to say.
    const std::string& why_no_kerberos() const { return why_no_kerberos_; }

  private:
    void acquire_for(const Credentials& credentials, bool host_has_name);
    void acquire_own(bool host_has_name);
    bool kerberos_knows(const std::string& user, gss_buffer_desc& password);
    bool has_ticket();
    OM_uint32 ask_for_ticket(OM_uint32* minor, const GssCredential& credential) const;
    void finish(OM_uint32 flags);

    // Without Kerberos NTLM goes alone: an SPNEGO credential of a password makes libgssapi ask the
    // domain controllers of the default realm for the user, whatever the name.
    bool spnego_ = false;
    GssName target_;
    GssCredential credential_;
    GssContext context_;
    std::string channel_;
    std::string why_no_kerberos_;
    bool complete_ = false;
};

}  // namespace tessarine
