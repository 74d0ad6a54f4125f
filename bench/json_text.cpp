#include "bench/json_text.h"

namespace tessarine::bench {

std::string json_text(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') quoted += '\\';
        if (byte < 0x20)
            ((quoted += "\\u00") += kDigits[byte >> 4]) += kDigits[byte & 15];
        else
            quoted += character;
    }
    return quoted += '"';
}

}  // namespace tessarine::bench
