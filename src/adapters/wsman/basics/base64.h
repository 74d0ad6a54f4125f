// Base64 (RFC 4648, section 4), as HTTP headers carry security tokens.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

/// With padding, without line ends.
std::string encode_base64(std::string_view bytes);

/// Nothing when `text` is not Base64 with its padding; the empty text has no bytes.
std::optional<std::string> decode_base64(std::string_view text);

}  // namespace tessarine
