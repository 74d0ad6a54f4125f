#include "adapters/wsman/basics/base64.h"

#include <openssl/evp.h>

#include <algorithm>

namespace tessarine {
namespace {

const unsigned char* as_bytes(std::string_view text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned char* as_bytes(std::string& text) {
    return reinterpret_cast<unsigned char*>(text.data());
}

}  // namespace

std::string encode_base64(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');  // EVP ends it with a NUL.
    const int length =
        EVP_EncodeBlock(as_bytes(text), as_bytes(bytes), static_cast<int>(bytes.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::optional<std::string> decode_base64(std::string_view text) {
    const std::string_view unpadded = text.substr(0, text.find_last_not_of('=') + 1);
    const std::size_t padding = text.size() - unpadded.size();
    // EVP_DecodeBlock forgives white space at the ends and takes padding for zeros.
    constexpr std::string_view kAlphabet =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    if (text.size() % 4 != 0 || padding > 2 ||
        unpadded.find_first_not_of(kAlphabet) != std::string_view::npos)
        return std::nullopt;
    std::string bytes(text.size() / 4 * 3, '\0');
    const int length =
        EVP_DecodeBlock(as_bytes(bytes), as_bytes(text), static_cast<int>(text.size()));
    if (length < 0) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(length) - padding);
    return bytes;
}

}  // namespace tessarine
