// Why a TLS connection is not to be trusted.
#pragma once

#include <string>

namespace tessarine {

/// The text for the certificate of `peer` ("host", "mail server") that OpenSSL refused with
/// `result` (X509_V_ERR_..., X509_V_OK where only the name is wrong). It says what is wrong and,
/// for an authority that this machine doesn't know, how to trust one.
std::string certificate_failure_text(const std::string& peer, long result);

}  // namespace tessarine
