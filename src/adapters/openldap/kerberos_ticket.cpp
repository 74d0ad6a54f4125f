#include "adapters/openldap/kerberos_ticket.h"

#include <gssapi/gssapi_krb5.h>

#include "core/text.h"

namespace tessarine {
namespace {

std::string realm_of(gss_cred_id_t credential) {
    OM_uint32 minor = 0;
    gss_name_t name = GSS_C_NO_NAME;
    gss_buffer_desc text = GSS_C_EMPTY_BUFFER;
    std::string user;
    if (!GSS_ERROR(gss_inquire_cred(&minor, credential, &name, nullptr, nullptr, nullptr)) &&
        !GSS_ERROR(gss_display_name(&minor, name, &text, nullptr)))
        user.assign(static_cast<const char*>(text.value), text.length);
    gss_release_buffer(&minor, &text);
    gss_release_name(&minor, &name);
    return user.substr(user.rfind('@') + 1);
}

// The library loses the name of an expired one, so the time that is left is asked for first.
KerberosTicket ticket_of(gss_cred_id_t credential) {
    OM_uint32 minor = 0;
    OM_uint32 lifetime = 0;
    const OM_uint32 major =
        gss_inquire_cred(&minor, credential, nullptr, &lifetime, nullptr, nullptr);
    if (GSS_ROUTINE_ERROR(major) == GSS_S_CREDENTIALS_EXPIRED) return {TicketState::Expired, ""};
    if (GSS_ERROR(major)) return {};
    if (lifetime == 0) return {TicketState::Expired, ""};
    return {TicketState::Valid, realm_of(credential)};
}

// Whether `domain` is `other`, or ends in it as in a domain above.
bool is_within(const std::string& domain, const std::string& other) {
    if (domain.size() == other.size()) return same_text(domain, other);
    const std::string end = "." + other;
    return domain.size() > end.size() &&
           same_text(std::string_view(domain).substr(domain.size() - end.size()), end);
}

}  // namespace

KerberosTicket kerberos_ticket() {
    gss_OID_set_desc mechanisms{1, const_cast<gss_OID>(gss_mech_krb5)};
    OM_uint32 minor = 0;
    gss_cred_id_t credential = GSS_C_NO_CREDENTIAL;
    const OM_uint32 major = gss_acquire_cred(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE, &mechanisms,
                                             GSS_C_INITIATE, &credential, nullptr, nullptr);
    if (GSS_ROUTINE_ERROR(major) == GSS_S_CREDENTIALS_EXPIRED) return {TicketState::Expired, ""};
    if (GSS_ERROR(major)) return {};
    KerberosTicket ticket = ticket_of(credential);
    gss_release_cred(&minor, &credential);
    return ticket;
}

bool is_realm_of(const std::string& realm, const std::string& domain) {
    return is_within(realm, domain) || is_within(domain, realm);
}

}  // namespace tessarine
