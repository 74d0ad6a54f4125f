#include "curl/certificate_failure.h"

#include <openssl/x509_vfy.h>

#include <algorithm>
#include <iterator>

namespace tessarine {
namespace {

constexpr const char* kOtherName = "is for another name than the one it was called by";
constexpr const char* kUnknownAuthority = "is from an authority that this machine doesn't know";
constexpr const char* kTrust =
    ". To trust it, put the certificate of its authority as a .crt file into "
    "/usr/local/share/ca-certificates and run update-ca-certificates as root";

struct KnownResult {
    long result;
    const char* text;
    const char* advice = "";
};

constexpr KnownResult kResults[] = {
    // libcurl compares the name by itself, before it asks for OpenSSL's result.
    {X509_V_ERR_UNSPECIFIED, kOtherName},
    {X509_V_ERR_HOSTNAME_MISMATCH, kOtherName},
    {X509_V_ERR_CERT_HAS_EXPIRED, "has expired"},
    {X509_V_ERR_CERT_NOT_YET_VALID, "is not valid yet"},
    {X509_V_ERR_CERT_REVOKED, "has been revoked"},
    {X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT, "is signed by itself, and by no authority", kTrust},
    {X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN, "is from an authority that this machine doesn't trust",
     kTrust},
    {X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT, kUnknownAuthority, kTrust},
    {X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY, kUnknownAuthority, kTrust},
    {X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE, kUnknownAuthority, kTrust},
};

}  // namespace

std::string certificate_failure_text(const std::string& peer, long result) {
    const std::string subject = "The " + peer + "'s certificate ";
    const auto* known =
        std::find_if(std::begin(kResults), std::end(kResults),
                     [result](const KnownResult& each) { return each.result == result; });
    if (known != std::end(kResults)) return subject + known->text + known->advice;
    return subject + "can't be trusted: " + X509_verify_cert_error_string(result);
}

}  // namespace tessarine
