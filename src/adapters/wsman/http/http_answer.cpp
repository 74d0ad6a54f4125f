#include "adapters/wsman/http/http_answer.h"

#include <algorithm>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/base64.h"

namespace tessarine {
namespace {

constexpr std::string_view kScheme = "Negotiate";

// The value of the header line called `name`, when `line` is one.
std::optional<std::string_view> value_of(std::string_view line, std::string_view name) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || !same_ascii_text(line.substr(0, colon), name))
        return std::nullopt;
    return trimmed(line.substr(colon + 1));
}

// What follows the scheme in one element of a challenge list, when it is of that scheme.
std::optional<std::string_view> token_in(std::string_view element) {
    if (!same_ascii_text(element.substr(0, kScheme.size()), kScheme)) return std::nullopt;
    element.remove_prefix(kScheme.size());
    if (!element.empty() && element.front() != ' ') return std::nullopt;
    return trimmed(element);
}

}  // namespace

void HttpAnswer::clear() {
    status = 0;
    content_type.clear();
    content_encoding.clear();
    challenges.clear();
    body.clear();
}

void HttpAnswer::take_header(std::string_view line) {
    if (line.substr(0, 5) == "HTTP/")
        clear();
    else if (const auto type = value_of(line, "Content-Type"))
        content_type = *type;
    else if (const auto encoding = value_of(line, "Content-Encoding"))
        content_encoding = *encoding;
    else if (const auto challenge = value_of(line, "WWW-Authenticate"))
        challenges.emplace_back(*challenge);
}

std::optional<std::string> HttpAnswer::negotiate_token() const {
    std::optional<std::string> token;
    for (const std::string_view challenge : challenges) {
        // One line may list several challenges. No token contains a comma.
        for (std::size_t begin = 0; begin <= challenge.size();) {
            const std::size_t end = std::min(challenge.find(',', begin), challenge.size());
            const auto text = token_in(trimmed(challenge.substr(begin, end - begin)));
            if (text && (!token || token->empty())) token = decode_base64(*text);
            begin = end + 1;
        }
    }
    return token;
}

}  // namespace tessarine
