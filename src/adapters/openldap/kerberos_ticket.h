// The running user's Kerberos ticket.
#pragma once

#include <string>

namespace tessarine {

enum class TicketState { None, Expired, Valid };

struct KerberosTicket {
    TicketState state = TicketState::None;
    std::string realm;  ///< of a valid one's user
};

/// The ticket that the user's own sign-ins take.
KerberosTicket kerberos_ticket();

/// Whether a user of that realm belongs to the domain, or to one above or below it.
bool is_realm_of(const std::string& realm, const std::string& domain);

}  // namespace tessarine
