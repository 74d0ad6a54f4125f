// A connection to one of a domain's servers, signed in where the user can.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "adapters/openldap/ldap_handles.h"
#include "adapters/openldap/walk_link.h"

namespace tessarine {

/// While it lasts, the link knows the connection's socket.
struct SocketRelease {
    void operator()(WalkLink* link) const { link->use_socket(-1); }
};

struct LdapSession {
    LdapConnection connection;
    std::unique_ptr<WalkLink, SocketRelease> socket_use;  ///< ends before the connection
    std::string server;                                   ///< its name, for errors
    /// Why nobody has signed in, as the end of a sentence; empty for somebody who has.
    std::string anonymous_because;
};

/// Connects to the first of the servers that answers (LDAPv3, RFC 4511) and signs in with the
/// user's Kerberos ticket, each message then signed and sealed (RFC 4752). Without a ticket, or
/// with one of another realm that is of no use, nobody signs in. Raises a RuntimeError with the
/// cause in words. `domain` is empty where the path has a server.
LdapSession open_ldap_session(const std::vector<std::string>& servers, const std::string& domain,
                              std::chrono::seconds silence, WalkLink& link);

}  // namespace tessarine
