#include "adapters/wsman/sealed_channel.h"

#include <utility>

#include "adapters/wsman/ascii.h"
#include "adapters/wsman/base64.h"
#include "adapters/wsman/failure.h"
#include "adapters/wsman/limits.h"

namespace tessarine {
namespace {

constexpr long kOk = 200;
constexpr long kUnauthorized = 401;
constexpr long kNotFound = 404;
constexpr long kServerError = 500;

// What libcurl would add by itself and what hosts would do unasked: no interim answers, no
// compression.
std::vector<std::string> with_common_headers(std::vector<std::string> headers) {
    headers.insert(headers.end(),
                   {"Expect:", "Accept:", "Accept-Encoding: identity", "User-Agent: Tessarine"});
    return headers;
}

[[noreturn]] void fail_for_status(long status) {
    if (status == kUnauthorized) raise_failure("The host refused the credentials");
    if (status == kNotFound) raise_failure("The host has no WS-Management service at this address");
    raise_failure("The host answered with HTTP status " + std::to_string(status));
}

bool is_encrypted(const HttpAnswer& answer) {
    constexpr std::string_view kType = "multipart/encrypted";
    return same_ascii_text(std::string_view(answer.content_type).substr(0, kType.size()), kType);
}

}  // namespace

SealedChannel::SealedChannel(const HostAddress& address,
                             const std::optional<Credentials>& credentials,
                             std::chrono::seconds operation_timeout,
                             std::function<void()> while_waiting, PartHeaderIndent indent)
    : url_(address.url()),
      connection_(address),
      negotiation_(address.host, credentials),
      while_waiting_(std::move(while_waiting)),
      patience_{operation_timeout + limits::kSilenceAfterTimeout, limits::kWholeExchange},
      indent_(indent) {}

void SealedChannel::open() {
    const HttpAnswer* answer = &post_token(negotiation_.next_token({}));
    if (answer->status == kUnauthorized && !answer->negotiate_token())
        raise_failure("The host offers no integrated sign-in (Negotiate)");
    for (int leg = 1; answer->status == kUnauthorized; ++leg) {
        const std::string token = answer->negotiate_token().value_or("");
        if (token.empty() || leg == limits::kSignInLegs) fail_for_status(answer->status);
        answer = &post_token(negotiation_.next_token(token));
    }
    if (answer->status != kOk) fail_for_status(answer->status);
    finish_sign_in(answer->negotiate_token().value_or(""));
}

// The last answer may carry a last token.
void SealedChannel::finish_sign_in(const std::string& token) {
    if (!negotiation_.is_complete() && !token.empty()) negotiation_.next_token(token);
    if (!negotiation_.is_complete()) raise_failure("The host ended the sign-in too early");
    seal_.emplace(negotiation_.context());
    usable_ = true;
}

const HttpAnswer& SealedChannel::post_token(const std::string& token) {
    return connection_.post(
        with_common_headers({"Authorization: Negotiate " + encode_base64(token), "Content-Type:"}),
        {}, patience_, while_waiting_);
}

std::string SealedChannel::exchange(std::string_view soap) {
    return exchange(soap, patience_, while_waiting_);
}

void SealedChannel::send_parting(std::string_view soap) {
    exchange(soap, {limits::kRelease, limits::kRelease}, nullptr);
}

std::string SealedChannel::exchange(std::string_view soap, HttpPatience patience,
                                    const std::function<void()>& while_waiting) {
    // Usable again only once the answer was opened: after a failure the two sides' seals no longer
    // stand at the same place.
    if (!std::exchange(usable_, false)) raise_failure("The connection to the host is lost");
    const std::string body = encrypt_message(*seal_, soap, indent_);
    std::string plain = open_answer(connection_.post(
        with_common_headers({"Content-Type: " + std::string(kEncryptedContentType)}), body,
        patience, while_waiting));
    usable_ = true;
    return plain;
}

std::string SealedChannel::open_answer(const HttpAnswer& answer) {
    if (answer.status == kUnauthorized)
        raise_failure("The host asks for a new sign-in in mid-session");
    if (is_encrypted(answer)) return decrypt_message(*seal_, answer.body);
    if (answer.status != kOk && answer.status != kServerError) fail_for_status(answer.status);
    raise_failure("The host's answer is not encrypted (HTTP status " +
                  std::to_string(answer.status) + ")");
}

}  // namespace tessarine
