#include "adapters/wsman/security_seal.h"

#include "adapters/wsman/failure.h"
#include "adapters/wsman/gss_error.h"
#include "adapters/wsman/gss_handles.h"

namespace tessarine {
namespace {

// NTLM's signature; the sealed data behind it is as long as the plain text.
constexpr std::size_t kSignatureLength = 16;

void require_sealed(const char* action, OM_uint32 major, OM_uint32 minor, int confidential) {
    const std::string what = std::string("The message can't be ") + action;
    if (GSS_ERROR(major)) raise_failure(what + ": " + gss_error_text(major, minor));
    // A message out of its order is no error to GSSAPI, but a status beside success.
    if (GSS_SUPPLEMENTARY_INFO(major) != 0) raise_failure(what + ": it is out of order");
    if (confidential == 0) raise_failure(what + ": it would not be encrypted");
}

}  // namespace

SealedMessage SecuritySeal::seal(std::string_view plain) {
    OM_uint32 minor = 0;
    int confidential = 0;
    gss_buffer_desc input = gss_input(plain);
    GssBuffer output;
    const OM_uint32 major =
        gss_wrap(&minor, context_, 1, GSS_C_QOP_DEFAULT, &input, &confidential, output.address());
    require_sealed("encrypted", major, minor, confidential);
    if (output.view().size() != plain.size() + kSignatureLength)
        raise_failure("The message can't be encrypted: no NTLM session");
    return {output.text(), kSignatureLength, plain.size()};
}

std::string SecuritySeal::unseal(std::string_view token, std::size_t header_length) {
    if (header_length != kSignatureLength)
        raise_failure("The message can't be decrypted: no NTLM seal");
    OM_uint32 minor = 0;
    int confidential = 0;
    gss_buffer_desc input = gss_input(token);
    GssBuffer output;
    const OM_uint32 major =
        gss_unwrap(&minor, context_, &input, output.address(), &confidential, nullptr);
    require_sealed("decrypted", major, minor, confidential);
    return output.text();
}

}  // namespace tessarine
