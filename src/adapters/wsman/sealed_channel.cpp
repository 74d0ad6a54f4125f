#include "adapters/wsman/sealed_channel.h"

#include <future>
#include <utility>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/base64.h"
#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/sign_in/channel_binding.h"

namespace tessarine {
namespace {

constexpr long kOk = 200;
constexpr long kFirstRedirection = 300;
constexpr long kLastRedirection = 399;
constexpr long kUnauthorized = 401;
constexpr long kNotFound = 404;
constexpr long kServerError = 500;
constexpr long kUnavailable = 503;

constexpr std::chrono::milliseconds kBetweenCalls{50};

constexpr std::string_view kSoapContentType = "application/soap+xml;charset=UTF-8";

// What libcurl would add by itself and what hosts would do unasked: no interim answers, no
// compression.
std::vector<std::string> with_common_headers(std::vector<std::string> headers) {
    headers.insert(headers.end(),
                   {"Expect:", "Accept:", "Accept-Encoding: identity", "User-Agent: Tessarine"});
    return headers;
}

[[noreturn]] void fail_for_status(long status) {
    const std::string number = " (HTTP status " + std::to_string(status) + ")";
    if (status == kNotFound) raise_failure("The host has no WS-Management service at this address");
    if (status == kUnavailable) raise_failure("The host's service is busy or stopped" + number);
    if (status >= kFirstRedirection && status <= kLastRedirection)
        raise_failure("The host refers to another address, which is not followed" + number);
    raise_failure("The host answered with HTTP status " + std::to_string(status));
}

[[noreturn]] void fail_for_refusal(const Negotiation& negotiation) {
    const std::string& note = negotiation.why_no_kerberos();
    raise_failure("The host refused the credentials" +
                  (note.empty() ? "" : " (of Kerberos: " + note + ")"));
}

bool is_of_type(const HttpAnswer& answer, std::string_view type) {
    return same_ascii_text(std::string_view(answer.content_type).substr(0, type.size()), type);
}

}  // namespace

SealedChannel::SealedChannel(const HostAddress& address,
                             const std::optional<Credentials>& credentials,
                             std::chrono::seconds operation_timeout,
                             std::function<void()> while_waiting, PartHeaderIndent indent,
                             const std::string& authorities)
    : address_(address),
      connection_(address, authorities),
      credentials_(credentials),
      while_waiting_(std::move(while_waiting)),
      patience_{operation_timeout + limits::kSilenceAfterTimeout, limits::kWholeExchange},
      indent_(indent) {}

void SealedChannel::open() {
    knock();
    const HttpAnswer* answer = &post_token(first_token());
    for (int leg = 1; answer->status == kUnauthorized; ++leg) {
        const std::string token = answer->negotiate_token().value_or("");
        if (token.empty() || leg == limits::kSignInLegs || negotiation_->is_complete())
            fail_for_refusal(*negotiation_);
        answer = &post_token(negotiation_->next_token(token));
    }
    if (answer->status != kOk) fail_for_status(answer->status);
    finish_sign_in(answer->negotiate_token().value_or(""));
}

// The host is known, and its certificate verified, before the domain is asked for the user and
// anything of the user goes to the host. Hosts close the connection after such a request.
void SealedChannel::knock() {
    const HttpAnswer& answer =
        connection_.post(with_common_headers({"Content-Type:"}), {}, patience_, while_waiting_);
    if (answer.status != kUnauthorized) fail_for_status(answer.status);
    if (!answer.negotiate_token())
        raise_failure("The host offers no integrated sign-in (Negotiate)");
    connection_.allow_replacement();
}

// GSSAPI asks the domain controllers, and is very patient with silent ones: it has a thread of its
// own, so that the caller's hook is called meanwhile.
std::string SealedChannel::first_token() {
    auto token = std::async(std::launch::async, [this, binding = channel_binding()] {
        negotiation_.emplace(address_.host, std::exchange(credentials_, std::nullopt), binding);
        return negotiation_->next_token({});
    });
    while (token.wait_for(kBetweenCalls) != std::future_status::ready)
        if (while_waiting_) while_waiting_();
    return token.get();
}

std::string SealedChannel::channel_binding() const {
    if (address_.protection != Protection::Tls) return "";
    return server_end_point_binding(connection_.server_certificate());
}

// The last answer may carry a last token.
void SealedChannel::finish_sign_in(const std::string& token) {
    if (!negotiation_->is_complete() && !token.empty()) negotiation_->next_token(token);
    if (!negotiation_->is_complete()) raise_failure("The host ended the sign-in too early");
    if (address_.protection == Protection::Seal) seal_.emplace(negotiation_->context());
    usable_ = true;
}

const HttpAnswer& SealedChannel::post_token(const std::string& token) {
    return connection_.post(
        with_common_headers({"Authorization: Negotiate " + encode_base64(token), "Content-Type:"}),
        {}, {patience_.silence, patience_.silence}, while_waiting_);
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
    const bool tls = address_.protection == Protection::Tls;
    const std::string body = tls ? std::string(soap) : encrypt_message(*seal_, soap, indent_);
    const std::string type(tls ? kSoapContentType : kEncryptedContentType);
    std::string plain = open_answer(connection_.post(with_common_headers({"Content-Type: " + type}),
                                                     body, patience, while_waiting));
    usable_ = true;
    return plain;
}

std::string SealedChannel::open_answer(const HttpAnswer& answer) {
    if (answer.status == kUnauthorized)
        raise_failure("The host asks for a new sign-in in mid-session");
    if (!answer.content_encoding.empty() && !same_ascii_text(answer.content_encoding, "identity"))
        raise_failure("The host's answer is compressed, which nobody asked for");
    if (seal_ && is_of_type(answer, "multipart/encrypted"))
        return decrypt_message(*seal_, answer.body);
    if (answer.status != kOk && answer.status != kServerError) fail_for_status(answer.status);
    if (!seal_ && is_of_type(answer, "application/soap+xml")) return answer.body;
    raise_failure((seal_ ? "The host's answer is not encrypted (HTTP status "
                         : "The host's answer is no SOAP message (HTTP status ") +
                  std::to_string(answer.status) + ")");
}

}  // namespace tessarine
