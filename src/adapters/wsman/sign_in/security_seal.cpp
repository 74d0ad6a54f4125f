#include "adapters/wsman/sign_in/security_seal.h"

#include <gssapi/gssapi_ext.h>

#include <array>

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/sign_in/gss_error.h"
#include "adapters/wsman/sign_in/gss_handles.h"
#include "adapters/wsman/sign_in/kerberos_error.h"
#include "adapters/wsman/sign_in/mechanisms.h"

namespace tessarine {
namespace {

// NTLM's signature; the sealed data after it is as long as the plain text.
constexpr std::size_t kSignatureLength = 16;

void require_success(const std::string& what, OM_uint32 major, OM_uint32 minor) {
    if (!GSS_ERROR(major)) return;
    // A context ends with the ticket that it was made with.
    if (GSS_ROUTINE_ERROR(major) == GSS_S_CONTEXT_EXPIRED)
        raise_failure(kerberos_error(major, minor).text);
    raise_failure(what + ": " + gss_error_text(major, minor));
}

void require_sealed(const char* action, OM_uint32 major, OM_uint32 minor, int confidential) {
    const std::string what = std::string("The message can't be ") + action;
    require_success(what, major, minor);
    // A message out of its order is no error to GSSAPI, but a status beside success.
    if (GSS_SUPPLEMENTARY_INFO(major) != 0) raise_failure(what + ": it is out of order");
    if (confidential == 0) raise_failure(what + ": it would not be encrypted");
}

bool is_kerberos(gss_ctx_id_t context) {
    OM_uint32 minor = 0;
    gss_OID mechanism = GSS_C_NO_OID;
    const OM_uint32 major = gss_inquire_context(&minor, context, nullptr, nullptr, nullptr,
                                                &mechanism, nullptr, nullptr, nullptr);
    require_success("The sign-in can't seal messages", major, minor);
    if (mechanism == GSS_C_NO_OID)
        raise_failure("The sign-in can't seal messages: it is not complete");
    return same_mechanism(*mechanism, Kerberos().oid);
}

// The pieces of one message, of which GSSAPI may allocate some.
class MessagePieces {
  public:
    explicit MessagePieces(const std::array<gss_iov_buffer_desc, 3>& pieces) : pieces_(pieces) {}
    MessagePieces(const MessagePieces&) = delete;
    MessagePieces& operator=(const MessagePieces&) = delete;
    ~MessagePieces() {
        OM_uint32 minor = 0;
        gss_release_iov_buffer(&minor, get(), count());
    }

    gss_iov_buffer_desc* get() { return pieces_.data(); }
    int count() const { return static_cast<int>(pieces_.size()); }
    std::string_view view(std::size_t index) const {
        const gss_buffer_desc& buffer = pieces_[index].buffer;
        return {static_cast<const char*>(buffer.value), buffer.length};
    }

  private:
    std::array<gss_iov_buffer_desc, 3> pieces_;
};

gss_iov_buffer_desc piece(OM_uint32 type, char* bytes = nullptr, std::size_t length = 0) {
    return {type, {length, bytes}};
}

}  // namespace

SecuritySeal::SecuritySeal(gss_ctx_id_t context)
    : context_(context), kerberos_(is_kerberos(context)) {}

SealedMessage SecuritySeal::seal(std::string_view plain) {
    if (kerberos_) return seal_with_kerberos(plain);
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
    if (kerberos_) return unseal_with_kerberos(token, header_length);
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

// Windows wants the header apart from the data, which gss_wrap would mix.
SealedMessage SecuritySeal::seal_with_kerberos(std::string_view plain) {
    std::string data(plain);
    MessagePieces pieces({piece(GSS_IOV_BUFFER_TYPE_HEADER | GSS_IOV_BUFFER_FLAG_ALLOCATE),
                          piece(GSS_IOV_BUFFER_TYPE_DATA, data.data(), data.size()),
                          piece(GSS_IOV_BUFFER_TYPE_PADDING | GSS_IOV_BUFFER_FLAG_ALLOCATE)});
    OM_uint32 minor = 0;
    int confidential = 0;
    const OM_uint32 major = gss_wrap_iov(&minor, context_, 1, GSS_C_QOP_DEFAULT, &confidential,
                                         pieces.get(), pieces.count());
    require_sealed("encrypted", major, minor, confidential);
    const std::string_view header = pieces.view(0);
    const std::string_view padding = pieces.view(2);
    data.insert(0, header).append(padding);
    return {std::move(data), header.size(), plain.size() + padding.size()};
}

std::string SecuritySeal::unseal_with_kerberos(std::string_view token, std::size_t header_length) {
    std::string header(token.substr(0, header_length));
    std::string data(token.substr(header.size()));
    // The empty piece takes what is no data.
    MessagePieces pieces({piece(GSS_IOV_BUFFER_TYPE_HEADER, header.data(), header.size()),
                          piece(GSS_IOV_BUFFER_TYPE_DATA, data.data(), data.size()),
                          piece(GSS_IOV_BUFFER_TYPE_DATA)});
    OM_uint32 minor = 0;
    int confidential = 0;
    const OM_uint32 major =
        gss_unwrap_iov(&minor, context_, &confidential, nullptr, pieces.get(), pieces.count());
    require_sealed("decrypted", major, minor, confidential);
    data.resize(pieces.view(1).size());
    return data;
}

}  // namespace tessarine
