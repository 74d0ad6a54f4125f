// What an HTTP answer says beside its body.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

struct HttpAnswer {
    long status = 0;
    std::string content_type;
    /// Empty when the body is what it is.
    std::string content_encoding;
    /// The values of all WWW-Authenticate lines, in order.
    std::vector<std::string> challenges;
    std::string body;

    /// Forgets everything but the body's memory.
    void clear();

    /// Takes over one header line, as libcurl hands them out with their line end. A status line
    /// begins a new answer: an interim one (100 Continue) came before.
    void take_header(std::string_view line);

    /// The bytes of the token that a challenge of the scheme Negotiate carries; empty where such a
    /// challenge carries none, nothing where none is offered.
    std::optional<std::string> negotiate_token() const;
};

}  // namespace tessarine
