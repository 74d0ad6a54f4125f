#include "adapters/wsman/http/tls_error.h"

#include <openssl/x509_vfy.h>

#include <algorithm>
#include <iterator>

namespace tessarine {
namespace {

constexpr const char* kExpired = "The host's certificate has expired";
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
    {X509_V_ERR_UNSPECIFIED,
     "The host's certificate is for another name than the one the host was called by"},
    {X509_V_ERR_HOSTNAME_MISMATCH,
     "The host's certificate is for another name than the one the host was called by"},
    {X509_V_ERR_CERT_HAS_EXPIRED, kExpired},
    {X509_V_ERR_CERT_NOT_YET_VALID, "The host's certificate is not valid yet"},
    {X509_V_ERR_CERT_REVOKED, "The host's certificate has been revoked"},
    {X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT, "The host's certificate is signed by the host itself",
     kTrust},
    {X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN,
     "The host's certificate is from an authority that this machine doesn't trust", kTrust},
    {X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT,
     "The host's certificate is from an authority that this machine doesn't know", kTrust},
    {X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY,
     "The host's certificate is from an authority that this machine doesn't know", kTrust},
    {X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE,
     "The host's certificate is from an authority that this machine doesn't know", kTrust},
};

}  // namespace

std::string certificate_failure_text(long result) {
    const auto* known =
        std::find_if(std::begin(kResults), std::end(kResults),
                     [result](const KnownResult& each) { return each.result == result; });
    if (known != std::end(kResults)) return std::string(known->text) + known->advice;
    return std::string("The host's certificate can't be trusted: ") +
           X509_verify_cert_error_string(result);
}

}  // namespace tessarine
