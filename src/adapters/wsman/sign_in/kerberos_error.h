// What a failed call of Kerberos means to the administrator.
#pragma once

#include <gssapi/gssapi.h>

#include <string>

namespace tessarine {

/// What to do when Kerberos doesn't work.
enum class KerberosFailure {
    /// There is no ticket, no such realm or user, or nobody to ask: another way may do.
    NotAvailable,
    /// It would be refused in any other way too, and a second try may lock the account.
    Final,
};

struct KerberosError {
    KerberosFailure failure;
    /// A sentence without a full stop, console's code page.
    std::string text;
};

/// The codes of RFC 4120, section 7.5.9, and of libkrb5, that a call of the mechanism Kerberos left
/// as its statuses.
KerberosError kerberos_error(OM_uint32 major, OM_uint32 minor);

/// What a host says, where the call was to take its token.
std::string host_refusal_text(OM_uint32 major, OM_uint32 minor);

}  // namespace tessarine
