#include "adapters/wsman/sign_in/kerberos_error.h"

#include <krb5.h>

#include <algorithm>
#include <iterator>

#include "adapters/wsman/sign_in/gss_error.h"

namespace tessarine {
namespace {

struct KnownCode {
    krb5_error_code code;
    KerberosFailure failure;
    const char* text;
};

constexpr const char* kNoTicket =
    "The running user has no Kerberos ticket: run kinit, or give an alternate user";
constexpr const char* kExpired =
    "The Kerberos ticket has expired: run kinit again, or give an alternate user";
constexpr const char* kClocks =
    "The clocks of this machine, the host and the domain controller differ by more than the five "
    "minutes that Kerberos allows";
constexpr const char* kUnreachable =
    "No domain controller (KDC) of the realm can be reached: check the network, DNS and "
    "/etc/krb5.conf";
constexpr const char* kNoService =
    "The domain knows no service HTTP of a host of this name: use the name that the domain has, or "
    "an alternate user DOMAIN\\user";
constexpr const char* kWrongPassword = "The alternate user's password is wrong";
constexpr const char* kOtherKey =
    "The host can't read the Kerberos ticket: it is not the one that the domain knows by this name";

using enum KerberosFailure;

constexpr KnownCode kCodes[] = {
    {KRB5_FCC_NOFILE, NotAvailable, kNoTicket},
    {KRB5_CC_NOTFOUND, NotAvailable, kNoTicket},
    {KRB5_CC_NOMEM, NotAvailable, kNoTicket},
    {KRB5KRB_AP_ERR_TKT_EXPIRED, Final, kExpired},
    {KRB5KRB_AP_ERR_SKEW, Final, kClocks},
    {KRB5KRB_AP_ERR_TKT_NYV, Final, kClocks},
    {KRB5_KDCREP_SKEW, Final, kClocks},
    {KRB5KDC_ERR_S_PRINCIPAL_UNKNOWN, NotAvailable, kNoService},
    {KRB5KDC_ERR_MUST_USE_USER2USER, NotAvailable, kNoService},
    {KRB5KDC_ERR_PRINCIPAL_NOT_UNIQUE, NotAvailable, "The domain knows several hosts of this name"},
    {KRB5KDC_ERR_ETYPE_NOSUPP, NotAvailable,
     "This machine, the host and the domain have no kind of encryption in common"},
    {KRB5KDC_ERR_SVC_UNAVAILABLE, NotAvailable, kUnreachable},
    {KRB5KDC_ERR_C_PRINCIPAL_UNKNOWN, NotAvailable, "The realm knows no user of this name"},
    {KRB5_KDC_UNREACH, NotAvailable, kUnreachable},
    {KRB5_REALM_CANT_RESOLVE, NotAvailable, kUnreachable},
    {KRB5_REALM_UNKNOWN, NotAvailable, kUnreachable},
    {KRB5_CONFIG_NODEFREALM, NotAvailable, kUnreachable},
    {KRB5KDC_ERR_WRONG_REALM, NotAvailable, kUnreachable},
    {KRB5KDC_ERR_PREAUTH_FAILED, Final, kWrongPassword},
    {KRB5KRB_AP_ERR_BAD_INTEGRITY, Final, kWrongPassword},
    {KRB5KDC_ERR_CLIENT_REVOKED, Final, "The alternate user's account is locked or disabled"},
    {KRB5KDC_ERR_NAME_EXP, Final, "The alternate user's account has expired"},
    {KRB5KDC_ERR_KEY_EXP, Final, "The alternate user's password has expired"},
    {KRB5KDC_ERR_POLICY, Final, "The domain's policy refuses this sign-in"},
};

struct HostCode {
    krb5_error_code code;
    const char* text;
};

constexpr HostCode kHostCodes[] = {
    {KRB5KRB_AP_ERR_SKEW, kClocks},         {KRB5KRB_AP_ERR_TKT_NYV, kClocks},
    {KRB5KRB_AP_ERR_TKT_EXPIRED, kExpired}, {KRB5KRB_AP_ERR_BAD_INTEGRITY, kOtherKey},
    {KRB5KRB_AP_ERR_MODIFIED, kOtherKey},   {KRB5KRB_AP_ERR_BADKEYVER, kOtherKey},
    {KRB5KRB_AP_ERR_NOKEY, kOtherKey},      {KRB5KRB_AP_ERR_NOT_US, kOtherKey},
};

}  // namespace

KerberosError kerberos_error(OM_uint32 major, OM_uint32 minor) {
    const auto* known =
        std::find_if(std::begin(kCodes), std::end(kCodes), [minor](const KnownCode& each) {
            return each.code == static_cast<krb5_error_code>(static_cast<std::int32_t>(minor));
        });
    if (known != std::end(kCodes)) return {known->failure, known->text};
    if (GSS_ROUTINE_ERROR(major) == GSS_S_CREDENTIALS_EXPIRED ||
        GSS_ROUTINE_ERROR(major) == GSS_S_CONTEXT_EXPIRED)
        return {Final, kExpired};
    if (GSS_ROUTINE_ERROR(major) == GSS_S_NO_CRED) return {NotAvailable, kNoTicket};
    return {Final, "The sign-in failed: " + gss_error_text(major, minor)};
}

// Through SPNEGO a code comes out under another number, but with the same words.
std::string host_refusal_text(OM_uint32 major, OM_uint32 minor) {
    const std::string words = gss_error_text(major, minor);
    const auto* known = std::find_if(
        std::begin(kHostCodes), std::end(kHostCodes),
        [&](const HostCode& each) { return words == krb5_get_error_message(nullptr, each.code); });
    return known != std::end(kHostCodes) ? known->text : "The host refused the sign-in: " + words;
}

}  // namespace tessarine
