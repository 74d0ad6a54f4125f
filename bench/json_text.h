// JSON texts (RFC 8259).
#pragma once

#include <string>
#include <string_view>

namespace tessarine::bench {

/// A UTF-8 text in quotes, with escapes where they are needed.
std::string json_text(std::string_view text);

}  // namespace tessarine::bench
