#include "sample_network/faults/fault_http.h"

#include <cstdint>

#include "adapters/wsman/basics/base64.h"

namespace tessarine::sample::faults {
namespace {

constexpr std::string_view kLengthField = "Content-Length: ";
constexpr std::string_view kTokenField = "WWW-Authenticate: Negotiate ";

void add_header(std::string& text, const std::string& line) {
    text.insert(text.find("\r\n") + 2, line + "\r\n");
}

std::string answer_of(const std::string& status, const std::string& lines) {
    return "HTTP/1.1 " + status + "\r\n" + lines + "Content-Length: 0\r\n\r\n";
}

// A gzip stream (RFC 1951, RFC 1952) of one long run of the same byte, from the low bit of each
// byte on; its checksum is left out.
std::string gzip_bomb() {
    constexpr int kRuns = 8 * 40'000;
    // A copy of 258 bytes from one byte back: the codes 11000101 and 00000.
    constexpr std::uint64_t kRun = 0b00000'10100011;
    std::string bytes("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10);
    std::uint64_t bits = 0b00001100'01'1;  // the last block, of fixed codes; first a NUL
    int count = 11;
    const auto drain = [&](int rest) {
        for (; count > rest; count -= 8, bits >>= 8) bytes += static_cast<char>(bits & 0xFF);
    };
    for (int i = 0; i < kRuns; ++i) {
        bits |= kRun << count;
        count += 13;
        drain(7);
    }
    count += 7;
    drain(0);
    return bytes;
}

}  // namespace

void tell_short_body(std::string& text) {
    const std::size_t digits = text.find(kLengthField) + kLengthField.size();
    text.erase(text.find("\r\n", digits) - 1, 1);
}

void tell_long_body(std::string& text) {
    text.insert(text.find(kLengthField) + kLengthField.size(), "1");
}

void compress(std::string& text) {
    const std::string bomb = gzip_bomb();
    const std::size_t length = text.find(kLengthField);
    text.replace(length, std::string::npos,
                 "Content-Encoding: gzip\r\nContent-Length: " + std::to_string(bomb.size()) +
                     "\r\n\r\n" + bomb);
}

void add_huge_header(std::string& text) {
    add_header(text, "X-Fault: " + std::string(std::size_t{8} << 20, 'x'));
}

void add_many_headers(std::string& text) {
    constexpr int kCount = 500'000;
    std::string lines = "X: 0";
    for (int i = 1; i < kCount; ++i) lines += "\r\nX: " + std::to_string(i);
    add_header(text, lines);
}

void speak_no_http(std::string& text) {
    text = "220 mail.sample.example ready\r\n";
}

void redirect(std::string& text) {
    text = answer_of("302 Found", "Location: http://127.0.0.1:9/elsewhere\r\n");
}

void miss_service(std::string& text) {
    text = answer_of("404 Not Found", "");
}

void be_unavailable(std::string& text) {
    text = answer_of("503 Service Unavailable", "");
}

void ask_for_new_sign_in(std::string& text) {
    text = answer_of("401 Unauthorized", "WWW-Authenticate: Negotiate\r\n");
}

void offer_basic_alone(std::string& text) {
    text = answer_of("401 Unauthorized", "WWW-Authenticate: Basic realm=\"WSMAN\"\r\n");
}

void send_bad_token(std::string& text) {
    text = answer_of("401 Unauthorized",
                     std::string(kTokenField) + encode_base64(std::string(300, '\x7F')) + "\r\n");
}

void ask_for_one_more_leg(std::string& text) {
    if (text.find(kTokenField) == std::string::npos) send_bad_token(text);
}

void welcome_early(std::string& text) {
    text = answer_of("200 OK", "");
}

// Takes the offer to seal (MS-NLMP, NTLMSSP_NEGOTIATE_SEAL) out of the host's challenge.
void refuse_to_seal(std::string& text) {
    const std::size_t begin = text.find(kTokenField) + kTokenField.size();
    const std::size_t end = text.find("\r\n", begin);
    if (text.find(kTokenField) == std::string::npos) return;
    std::string token = decode_base64(std::string_view(text).substr(begin, end - begin)).value();
    constexpr std::string_view kChallenge("NTLMSSP\0\x02\0\0\0", 12);
    constexpr std::size_t kFlags = 20;
    constexpr char kSeal = 0x20;
    const std::size_t at = token.find(kChallenge);
    if (at == std::string::npos) return;
    token[at + kFlags] &= static_cast<char>(~kSeal);
    text.replace(begin, end - begin, encode_base64(token));
}

void send_gzip_bomb(std::string& text) {
    const std::string bomb = gzip_bomb();
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string size;
    for (std::size_t rest = bomb.size(); rest != 0; rest /= 16)
        size.insert(0, 1, kDigits[rest % 16]);
    text = "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, chunked\r\n\r\n";
    text += size + "\r\n" + bomb + "\r\n0\r\n\r\n";
}

}  // namespace tessarine::sample::faults
