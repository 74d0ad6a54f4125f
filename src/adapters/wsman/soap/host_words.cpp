#include "adapters/wsman/soap/host_words.h"

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/limits.h"

namespace tessarine {

std::string host_words(std::string_view text) {
    std::string line;
    for (const char c : trimmed(text)) {
        const bool space = c == ' ' || (c >= '\t' && c <= '\r');
        if (!space)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    return line.substr(0, limits::kFaultText);
}

}  // namespace tessarine
