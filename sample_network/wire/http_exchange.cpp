#include "sample_network/wire/http_exchange.h"

#include <strings.h>

#include <array>
#include <charconv>
#include <chrono>

namespace tessarine::sample {
namespace {

constexpr std::size_t kLongestHeader = std::size_t{64} * 1024;
constexpr std::size_t kLongestBody = std::size_t{1024} * 1024;
constexpr std::chrono::minutes kIdleLimit{10};
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kHeaderEnd = "\r\n\r\n";

std::string_view take_until(std::string_view& text, std::string_view mark) {
    const std::size_t end = text.find(mark);
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + mark.size());
    return taken;
}

bool same_name(std::string_view left, std::string_view right) {
    return left.size() == right.size() && strncasecmp(left.data(), right.data(), right.size()) == 0;
}

std::string_view without_blanks(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

std::size_t body_length(std::string_view digits) {
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    if (error != std::errc{} || end != digits.data() + digits.size() || length > kLongestBody)
        throw ConnectionEnded("a body of unknown length, or too large");
    return length;
}

// Fills the request from its header and returns the length of the body after it.
std::size_t parse_header(std::string_view header, HttpRequest& request) {
    std::string_view first_line = take_until(header, kLineEnd);
    request.method = take_until(first_line, " ");
    request.path = take_until(first_line, " ");
    std::size_t length = 0;
    while (!header.empty()) {
        std::string_view value = take_until(header, kLineEnd);
        const std::string_view name = take_until(value, ":");
        value = without_blanks(value);
        if (same_name(name, "Content-Length")) length = body_length(value);
        if (same_name(name, "Content-Type")) request.content_type = value;
        if (same_name(name, "Authorization")) request.authorization = value;
        if (same_name(name, "Transfer-Encoding")) throw ConnectionEnded("a body in pieces");
    }
    return length;
}

const char* status_words(int status) {
    switch (status) {
        case 200:
            return "200 OK";
        case 400:
            return "400 Bad Request";
        case 401:
            return "401 Unauthorized";
        case 404:
            return "404 Not Found";
        case 405:
            return "405 Method Not Allowed";
        default:
            return "500 Internal Server Error";
    }
}

}  // namespace

void HttpReader::read_more() {
    std::array<char, std::size_t{16} * 1024> bytes;
    const std::size_t count = connection_.read_some(bytes, kIdleLimit);
    buffer_.append(bytes.data(), count);
}

HttpRequest HttpReader::read() {
    std::size_t header_end = 0;
    while ((header_end = buffer_.find(kHeaderEnd)) == std::string::npos) {
        if (buffer_.size() > kLongestHeader) throw ConnectionEnded("a header without an end");
        read_more();
    }
    HttpRequest request;
    const std::size_t length =
        parse_header(std::string_view(buffer_).substr(0, header_end), request);
    const std::size_t body = header_end + kHeaderEnd.size();
    while (buffer_.size() < body + length) read_more();
    request.body = buffer_.substr(body, length);
    buffer_.erase(0, body + length);
    return request;
}

std::string http_text(const HttpAnswer& answer) {
    std::string text = std::string("HTTP/1.1 ") + status_words(answer.status) + "\r\n";
    if (answer.challenge) text += "WWW-Authenticate: " + *answer.challenge + "\r\n";
    if (!answer.content_type.empty())
        text += "Content-Type: " + std::string(answer.content_type) + "\r\n";
    if (answer.closes_connection) text += "Connection: close\r\n";
    text += "Content-Length: " + std::to_string(answer.body.size()) + "\r\n\r\n";
    return text += answer.body;
}

}  // namespace tessarine::sample
