#include "adapters/wsman/sign_in/channel_binding.h"

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/objects.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <array>
#include <memory>

#include "adapters/wsman/basics/failure.h"

namespace tessarine {
namespace {

using Memory = std::unique_ptr<BIO, decltype(&BIO_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;

Certificate read_certificate(std::string_view pem) {
    const Memory memory(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())), BIO_free);
    Certificate certificate(PEM_read_bio_X509(memory.get(), nullptr, nullptr, nullptr), X509_free);
    if (certificate == nullptr) raise_failure("The host's certificate can't be read");
    return certificate;
}

const EVP_MD* hash_for(const X509* certificate) {
    int hash = NID_undef;
    X509_get_signature_info(const_cast<X509*>(certificate), &hash, nullptr, nullptr, nullptr);
    const bool weak =
        hash == NID_undef || hash == NID_md5 || hash == NID_sha1 || hash == NID_md5_sha1;
    const EVP_MD* function = weak ? EVP_sha256() : EVP_get_digestbynid(hash);
    return function != nullptr ? function : EVP_sha256();
}

}  // namespace

std::string server_end_point_binding(std::string_view certificate) {
    const Certificate read = read_certificate(certificate);
    std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
    unsigned length = 0;
    if (X509_digest(read.get(), hash_for(read.get()), hash.data(), &length) != 1)
        raise_failure("The host's certificate can't be hashed");
    return "tls-server-end-point:" +
           std::string(reinterpret_cast<const char*>(hash.data()), length);
}

}  // namespace tessarine
