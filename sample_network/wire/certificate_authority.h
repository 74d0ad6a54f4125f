// Certificates (RFC 5280) for the hosts that are reached over TLS.
#pragma once

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>
#include <string>

namespace tessarine::sample {

/// A certificate and its private key.
struct TlsIdentity {
    std::shared_ptr<EVP_PKEY> key;
    std::shared_ptr<X509> certificate;

    /// The certificate as PEM text.
    std::string pem() const;
};

/// The name and the IP address that a certificate is for, and when it holds, in days from now.
struct CertificatePlan {
    std::string name;
    std::string address;
    int first_day = -1;
    int last_day = 30;
};

/// A certificate without an authority. Raises a std::runtime_error, as all of this does.
TlsIdentity self_signed_identity(const CertificatePlan& plan);

/// An authority whose key is in the memory of this process alone.
class CertificateAuthority {
  public:
    CertificateAuthority();

    TlsIdentity identity(const CertificatePlan& plan) const;
    std::string pem() const { return own_.pem(); }

  private:
    TlsIdentity own_;
};

}  // namespace tessarine::sample
