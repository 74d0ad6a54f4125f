#include "sample_network/wire/certificate_authority.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <stdexcept>

namespace tessarine::sample {
namespace {

constexpr const char* kAuthorityName = "Sample network";

template <typename Result>
Result checked_tls(Result result) {
    if (!result) throw std::runtime_error("A certificate can't be made");
    return result;
}

void add_extension(X509& certificate, const TlsIdentity& issuer, int kind,
                   const std::string& text) {
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer.certificate.get(), &certificate, nullptr, nullptr, 0);
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
        checked_tls(X509V3_EXT_conf_nid(nullptr, &context, kind, text.c_str())),
        X509_EXTENSION_free);
    checked_tls(X509_add_ext(&certificate, extension.get(), -1));
}

void set_serial_number(X509& certificate) {
    std::uint32_t number = 0;
    checked_tls(RAND_bytes(reinterpret_cast<unsigned char*>(&number), sizeof number) == 1);
    checked_tls(ASN1_INTEGER_set_uint64(X509_get_serialNumber(&certificate), number));
}

// A new key, and a certificate for it that is not signed yet.
TlsIdentity unsigned_identity(const CertificatePlan& plan) {
    TlsIdentity made{{checked_tls(EVP_EC_gen("P-256")), EVP_PKEY_free},
                     {checked_tls(X509_new()), X509_free}};
    X509& certificate = *made.certificate;
    checked_tls(X509_set_version(&certificate, X509_VERSION_3));
    set_serial_number(certificate);
    checked_tls(X509_time_adj_ex(X509_getm_notBefore(&certificate), plan.first_day, 0, nullptr));
    checked_tls(X509_time_adj_ex(X509_getm_notAfter(&certificate), plan.last_day, 0, nullptr));
    checked_tls(X509_set_pubkey(&certificate, made.key.get()));
    checked_tls(X509_NAME_add_entry_by_txt(
        X509_get_subject_name(&certificate), "CN", MBSTRING_UTF8,
        reinterpret_cast<const unsigned char*>(plan.name.c_str()), -1, -1, 0));
    return made;
}

TlsIdentity signed_by(TlsIdentity made, const TlsIdentity& issuer) {
    X509& certificate = *made.certificate;
    checked_tls(
        X509_set_issuer_name(&certificate, X509_get_subject_name(issuer.certificate.get())));
    checked_tls(X509_sign(&certificate, issuer.key.get(), EVP_sha256()));
    return made;
}

TlsIdentity for_host(const CertificatePlan& plan, const TlsIdentity* issuer) {
    TlsIdentity made = unsigned_identity(plan);
    const TlsIdentity& signer = issuer == nullptr ? made : *issuer;
    std::string names = "DNS:" + plan.name;
    if (!plan.address.empty()) names += ",IP:" + plan.address;
    add_extension(*made.certificate, signer, NID_subject_alt_name, names);
    if (issuer != nullptr)
        add_extension(*made.certificate, signer, NID_authority_key_identifier, "keyid:always");
    return signed_by(made, signer);
}

TlsIdentity for_authority() {
    TlsIdentity made = unsigned_identity({kAuthorityName, ""});
    add_extension(*made.certificate, made, NID_basic_constraints, "critical,CA:TRUE");
    add_extension(*made.certificate, made, NID_key_usage, "critical,keyCertSign");
    add_extension(*made.certificate, made, NID_subject_key_identifier, "hash");
    return signed_by(made, made);
}

}  // namespace

std::string TlsIdentity::pem() const {
    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(checked_tls(BIO_new(BIO_s_mem())),
                                                           BIO_free);
    checked_tls(PEM_write_bio_X509(memory.get(), certificate.get()));
    char* text = nullptr;
    const long length = BIO_get_mem_data(memory.get(), &text);
    return {text, static_cast<std::size_t>(length)};
}

TlsIdentity self_signed_identity(const CertificatePlan& plan) {
    return for_host(plan, nullptr);
}

CertificateAuthority::CertificateAuthority() : own_(for_authority()) {}

TlsIdentity CertificateAuthority::identity(const CertificatePlan& plan) const {
    return for_host(plan, &own_);
}

}  // namespace tessarine::sample
