// The multipart body that carries one sealed SOAP message over plain HTTP: MS-WSMV, "Encrypted
// Message Types".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarine {

/// The HTTP Content-Type of such a body.
inline constexpr std::string_view kEncryptedContentType =
    "multipart/encrypted;protocol=\"application/HTTP-SPNEGO-session-encrypted\";"
    "boundary=\"Encrypted Boundary\"";

/// A message under its seal: `token` is the seal's header (for NTLM the signature) followed by the
/// sealed data. `plain_length` counts the plain bytes with the padding that the seal added.
struct SealedMessage {
    std::string token;
    std::size_t header_length = 0;
    std::size_t plain_length = 0;
};

/// Seals and opens messages in order, each direction for itself. Whatever fails raises a
/// RuntimeError, and the seal is of no use after that.
class MessageSeal {
  public:
    virtual ~MessageSeal() = default;
    virtual SealedMessage seal(std::string_view plain) = 0;

    /// `token` as in SealedMessage, its first `header_length` bytes the header.
    virtual std::string unseal(std::string_view token, std::size_t header_length) = 0;
};

/// MS-WSMV begins the header lines of a part with a tab; some endpoints can't read one.
enum class PartHeaderIndent { Tab, None };

/// The body for one message.
std::string encrypt_message(MessageSeal& seal, std::string_view plain,
                            PartHeaderIndent indent = PartHeaderIndent::Tab);

/// The message in a body, in either form, without the NULs that some endpoints pad it with. Raises
/// a RuntimeError when the body is malformed or the seal doesn't hold.
std::string decrypt_message(MessageSeal& seal, std::string_view body);

}  // namespace tessarine
