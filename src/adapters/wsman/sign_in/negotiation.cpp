#include "adapters/wsman/sign_in/negotiation.h"

#include <gssapi/gssapi_ext.h>

#include <algorithm>
#include <utility>

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/host_address.h"
#include "adapters/wsman/sign_in/gss_error.h"
#include "adapters/wsman/sign_in/kerberos_error.h"
#include "adapters/wsman/sign_in/mechanisms.h"
#include "adapters/wsman/sign_in/no_traces.h"
#include "core/code_page.h"
#include "core/secret_text.h"

namespace tessarine {
namespace {

// No delegation: the host may act as the user, but not towards others.
constexpr OM_uint32 kAskedFlags = GSS_C_MUTUAL_FLAG | GSS_C_REPLAY_FLAG | GSS_C_SEQUENCE_FLAG |
                                  GSS_C_INTEG_FLAG | GSS_C_CONF_FLAG;

// NTLM is a plug-in that nothing links; without this look its absence says "unsupported mechanism".
void require_ntlm() {
    OM_uint32 minor = 0;
    int present = 0;
    GssOidSet mechanisms;
    Ntlm ntlm;
    gss_indicate_mechs(&minor, mechanisms.address());
    gss_test_oid_set_member(&minor, &ntlm.oid, mechanisms.get(), &present);
    if (present == 0)
        raise_failure("No NTLM plugin for GSSAPI on this machine: install gss-ntlmssp");
}

void import_name(std::string_view text, gss_OID kind, GssName& name) {
    OM_uint32 minor = 0;
    gss_buffer_desc input = gss_input(text);
    const OM_uint32 major = gss_import_name(&minor, &input, kind, name.address());
    if (GSS_ERROR(major)) raise_failure("The name can't be used: " + gss_error_text(major, minor));
}

// ".\user" means a user of the host itself, which is what NTLM takes a name without a domain for.
std::string_view without_own_host(std::string_view user) {
    return user.substr(0, 2) == ".\\" ? user.substr(2) : user;
}

// user@realm as Kerberos spells it; empty for a name of another form.
std::string principal_of(const std::string& user) {
    const std::size_t at = user.rfind('@');
    if (at == 0 || at == std::string::npos || at + 1 == user.size()) return "";
    std::string principal = user;
    std::transform(principal.begin() + static_cast<std::ptrdiff_t>(at), principal.end(),
                   principal.begin() + static_cast<std::ptrdiff_t>(at),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return principal;
}

OM_uint32 acquire_with_password(OM_uint32* minor, const GssName& user, gss_buffer_desc& password,
                                gss_OID_set mechanisms, GssCredential& credential) {
    return gss_acquire_cred_with_password(minor, user.get(), &password, GSS_C_INDEFINITE,
                                          mechanisms, GSS_C_INITIATE, credential.address(), nullptr,
                                          nullptr);
}

}  // namespace

Negotiation::Negotiation(const std::string& host, const std::optional<Credentials>& credentials,
                         std::string channel)
    : channel_(std::move(channel)) {
    import_name("HTTP@" + host, GSS_C_NT_HOSTBASED_SERVICE, target_);
    if (credentials && !credentials->user.empty())
        acquire_for(*credentials, !is_ip_address(host));
    else
        acquire_own(!is_ip_address(host));
}

void Negotiation::acquire_for(const Credentials& credentials, bool host_has_name) {
    if (credentials.password.empty()) raise_failure("The alternate user has no password");
    const NoTraces no_traces;
    const std::string name(to_utf8(without_own_host(credentials.user)));
    const SecretText password(to_utf8(credentials.password));
    gss_buffer_desc secret = gss_input(password.text());
    const std::string principal = host_has_name ? principal_of(name) : "";
    spnego_ = !principal.empty() && kerberos_knows(principal, secret);
    if (!spnego_) require_ntlm();
    GssName user;
    import_name(spnego_ ? principal : name, GSS_C_NT_USER_NAME, user);
    Spnego spnego;
    Ntlm ntlm;
    OM_uint32 minor = 0;
    const OM_uint32 major = acquire_with_password(
        &minor, user, secret, spnego_ ? &spnego.alone : &ntlm.alone, credential_);
    if (GSS_ERROR(major))
        raise_failure("The alternate user's credentials can't be used: " +
                      gss_error_text(major, minor));
}

// Asks the domain for the user's ticket, and with that for one of the host's service. Only by
// itself does Kerberos say why it gets none: through SPNEGO its codes come out as other numbers.
OM_uint32 Negotiation::ask_for_ticket(OM_uint32* minor, const GssCredential& credential) const {
    Kerberos kerberos;
    GssContext trial;
    GssBuffer token;
    return gss_init_sec_context(minor, credential.get(), trial.address(), target_.get(),
                                &kerberos.oid, kAskedFlags, GSS_C_INDEFINITE,
                                GSS_C_NO_CHANNEL_BINDINGS, GSS_C_NO_BUFFER, nullptr,
                                token.address(), nullptr, nullptr);
}

bool Negotiation::kerberos_knows(const std::string& user, gss_buffer_desc& password) {
    GssName name;
    import_name(user, GSS_C_NT_USER_NAME, name);
    Kerberos kerberos;
    GssCredential credential;
    OM_uint32 minor = 0;
    OM_uint32 major = acquire_with_password(&minor, name, password, &kerberos.alone, credential);
    if (!GSS_ERROR(major)) major = ask_for_ticket(&minor, credential);
    if (!GSS_ERROR(major)) return true;
    KerberosError error = kerberos_error(major, minor);
    if (error.failure == KerberosFailure::Final) raise_failure(error.text);
    why_no_kerberos_ = std::move(error.text);
    return false;
}

void Negotiation::acquire_own(bool host_has_name) {
    spnego_ = host_has_name && has_ticket();
    Spnego spnego;
    Ntlm ntlm;
    OM_uint32 minor = 0;
    const OM_uint32 major = gss_acquire_cred(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE,
                                             spnego_ ? &spnego.alone : &ntlm.alone, GSS_C_INITIATE,
                                             credential_.address(), nullptr, nullptr);
    if (!GSS_ERROR(major)) return;
    if (spnego_)
        raise_failure("The running user's ticket can't be used: " + gss_error_text(major, minor));
    raise_failure(host_has_name ? why_no_kerberos_
                                : "A ticket is of no use for a host that is given by its address: "
                                  "use its name, or give an alternate user");
}

bool Negotiation::has_ticket() {
    Kerberos kerberos;
    GssCredential credential;
    OM_uint32 minor = 0;
    OM_uint32 major = gss_acquire_cred(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE, &kerberos.alone,
                                       GSS_C_INITIATE, credential.address(), nullptr, nullptr);
    if (!GSS_ERROR(major)) major = ask_for_ticket(&minor, credential);
    if (!GSS_ERROR(major)) return true;
    why_no_kerberos_ = kerberos_error(major, minor).text;
    return false;
}

// Kerberos asks for the ticket only here, with the password that it has kept so far.
std::string Negotiation::next_token(std::string_view token) {
    const NoTraces no_traces;
    Spnego spnego;
    Ntlm ntlm;
    OM_uint32 minor = 0;
    OM_uint32 flags = 0;
    gss_buffer_desc input = gss_input(token);
    gss_channel_bindings_struct bindings{};
    bindings.application_data = gss_input(channel_);
    GssBuffer output;
    const OM_uint32 major =
        gss_init_sec_context(&minor, credential_.get(), context_.address(), target_.get(),
                             spnego_ ? &spnego.oid : &ntlm.oid, kAskedFlags, GSS_C_INDEFINITE,
                             channel_.empty() ? GSS_C_NO_CHANNEL_BINDINGS : &bindings, &input,
                             nullptr, output.address(), &flags, nullptr);
    if (GSS_ERROR(major) && token.empty()) raise_failure(kerberos_error(major, minor).text);
    if (GSS_ERROR(major)) raise_failure(host_refusal_text(major, minor));
    if ((major & GSS_S_CONTINUE_NEEDED) == 0) finish(flags);
    return output.text();
}

void Negotiation::finish(OM_uint32 flags) {
    if ((flags & GSS_C_CONF_FLAG) == 0)
        raise_failure("The host refuses to encrypt: the sign-in is given up");
    complete_ = true;
    credential_.reset();
}

}  // namespace tessarine
