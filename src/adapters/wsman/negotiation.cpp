#include "adapters/wsman/negotiation.h"

#include <gssapi/gssapi_ext.h>

#include <array>

#include "adapters/wsman/failure.h"
#include "adapters/wsman/gss_error.h"
#include "adapters/wsman/secret_text.h"
#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr OM_uint32 kAskedFlags = GSS_C_MUTUAL_FLAG | GSS_C_REPLAY_FLAG | GSS_C_SEQUENCE_FLAG |
                                  GSS_C_INTEG_FLAG | GSS_C_CONF_FLAG;

// An object identifier in its encoded form, with room to be pointed at.
template <std::size_t size>
struct Mechanism {
    std::array<unsigned char, size> bytes;
    gss_OID_desc oid{size, bytes.data()};
    gss_OID_set_desc alone{1, &oid};

    explicit Mechanism(const std::array<unsigned char, size>& encoded) : bytes(encoded) {}
    Mechanism(const Mechanism&) = delete;
    Mechanism& operator=(const Mechanism&) = delete;
};

// 1.3.6.1.5.5.2
struct Spnego : Mechanism<6> {
    Spnego() : Mechanism({0x2B, 0x06, 0x01, 0x05, 0x05, 0x02}) {}
};

// 1.3.6.1.4.1.311.2.2.10
struct Ntlm : Mechanism<10> {
    Ntlm() : Mechanism({0x2B, 0x06, 0x01, 0x04, 0x01, 0x82, 0x37, 0x02, 0x02, 0x0A}) {}
};

// NTLM is a plug-in that nothing links; without this look its absence says "unsupported mechanism".
void require_ntlm_plugin() {
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

}  // namespace

Negotiation::Negotiation(const std::string& host, const std::optional<Credentials>& credentials) {
    require_ntlm_plugin();
    import_name("HTTP@" + host, GSS_C_NT_HOSTBASED_SERVICE, target_);
    if (credentials && !credentials->user.empty())
        acquire_for(*credentials);
    else
        acquire_own();
    allow_only_ntlm();
}

void Negotiation::acquire_for(const Credentials& credentials) {
    if (credentials.password.empty()) raise_failure("The alternate user has no password");
    GssName user;
    import_name(to_utf8(without_own_host(credentials.user)), GSS_C_NT_USER_NAME, user);
    const SecretText password(to_utf8(credentials.password));
    gss_buffer_desc secret = gss_input(password.text());
    Spnego spnego;
    OM_uint32 minor = 0;
    const OM_uint32 major =
        gss_acquire_cred_with_password(&minor, user.get(), &secret, GSS_C_INDEFINITE, &spnego.alone,
                                       GSS_C_INITIATE, credential_.address(), nullptr, nullptr);
    if (GSS_ERROR(major))
        raise_failure("The alternate user's credentials can't be used: " +
                      gss_error_text(major, minor));
}

void Negotiation::acquire_own() {
    Spnego spnego;
    OM_uint32 minor = 0;
    const OM_uint32 major =
        gss_acquire_cred(&minor, GSS_C_NO_NAME, GSS_C_INDEFINITE, &spnego.alone, GSS_C_INITIATE,
                         credential_.address(), nullptr, nullptr);
    if (GSS_ERROR(major))
        raise_failure("The running user has no network credentials here: give an alternate user");
}

void Negotiation::allow_only_ntlm() {
    Ntlm ntlm;
    OM_uint32 minor = 0;
    const OM_uint32 major = gss_set_neg_mechs(&minor, credential_.get(), &ntlm.alone);
    if (GSS_ERROR(major)) raise_failure("NTLM can't be used: " + gss_error_text(major, minor));
}

std::string Negotiation::next_token(std::string_view token) {
    Spnego spnego;
    OM_uint32 minor = 0;
    OM_uint32 flags = 0;
    gss_buffer_desc input = gss_input(token);
    GssBuffer output;
    const OM_uint32 major =
        gss_init_sec_context(&minor, credential_.get(), context_.address(), target_.get(),
                             &spnego.oid, kAskedFlags, GSS_C_INDEFINITE, GSS_C_NO_CHANNEL_BINDINGS,
                             &input, nullptr, output.address(), &flags, nullptr);
    if (GSS_ERROR(major)) raise_failure("The sign-in failed: " + gss_error_text(major, minor));
    complete_ = (major & GSS_S_CONTINUE_NEEDED) == 0;
    if (complete_ && (flags & GSS_C_CONF_FLAG) == 0)
        raise_failure("The host refuses to encrypt: the sign-in is given up");
    if (complete_) credential_.reset();
    return output.text();
}

}  // namespace tessarine
