#include "adapters/wsman/sign_in/encrypted_message.h"

#include <charconv>
#include <cstdint>

#include "adapters/wsman/basics/failure.h"

namespace tessarine {
namespace {

constexpr std::string_view kBoundary = "Encrypted Boundary";
constexpr std::string_view kDataType = "application/octet-stream\r\n";
constexpr std::string_view kLengthField = "Length=";
constexpr std::size_t kHeaderLengthBytes = 4;

// What stands around the sealed bytes.
struct Frame {
    std::string_view token;
    std::size_t header_length;
    std::size_t plain_length;
};

[[noreturn]] void fail_malformed(const std::string& what) {
    raise_failure("The encrypted message is malformed: " + what);
}

std::string little_endian(std::size_t number) {
    std::string bytes;
    for (std::size_t i = 0; i < kHeaderLengthBytes; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
    return bytes;
}

std::size_t from_little_endian(std::string_view bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < kHeaderLengthBytes; ++i)
        number |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    return number;
}

std::size_t plain_length_in(std::string_view part_headers) {
    const std::size_t field = part_headers.find(kLengthField);
    if (field == std::string_view::npos) fail_malformed("it tells no length");
    const char* digits = part_headers.data() + field + kLengthField.size();
    std::size_t length = 0;
    const auto [end, error] =
        std::from_chars(digits, part_headers.data() + part_headers.size(), length);
    if (error != std::errc{}) fail_malformed("its length is no number");
    return length;
}

// The sealed bytes may contain anything, the boundary too: only the last boundary ends them.
std::string_view cut_at_closing_boundary(std::string_view data) {
    std::size_t end = data.rfind(std::string(kBoundary) + "--");
    if (end == std::string_view::npos) fail_malformed("its end is missing");
    if (end > 0 && data[end - 1] == ' ') --end;  // Some endpoints write "-- Encrypted Boundary".
    if (end < 2 || data.substr(end - 2, 2) != "--") fail_malformed("its end is missing");
    return data.substr(0, end - 2);
}

Frame parse_frame(std::string_view body) {
    const std::size_t data_type = body.find(kDataType);
    if (data_type == std::string_view::npos) fail_malformed("it has no sealed part");
    const std::string_view data =
        cut_at_closing_boundary(body.substr(data_type + kDataType.size()));
    if (data.size() < kHeaderLengthBytes) fail_malformed("its sealed part is cut off");
    const Frame frame{data.substr(kHeaderLengthBytes), from_little_endian(data),
                      plain_length_in(body.substr(0, data_type))};
    if (frame.header_length > frame.token.size())
        fail_malformed("its seal is longer than its sealed part");
    return frame;
}

}  // namespace

std::string encrypt_message(MessageSeal& seal, std::string_view plain, PartHeaderIndent indent) {
    const SealedMessage sealed = seal.seal(plain);
    const std::string boundary = "--" + std::string(kBoundary);
    const std::string margin = indent == PartHeaderIndent::Tab ? "\t" : "";
    const std::string head =
        boundary + "\r\n" + margin + "Content-Type: application/HTTP-SPNEGO-session-encrypted\r\n" +
        margin + "OriginalContent: type=application/soap+xml;charset=UTF-8;" +
        std::string(kLengthField) + std::to_string(sealed.plain_length) + "\r\n" + boundary +
        "\r\n" + margin + "Content-Type: " + std::string(kDataType) +
        little_endian(sealed.header_length);
    const std::string end = boundary + "--\r\n";
    std::string body;
    body.reserve(head.size() + sealed.token.size() + end.size());
    return body.append(head).append(sealed.token).append(end);
}

std::string decrypt_message(MessageSeal& seal, std::string_view body) {
    const Frame frame = parse_frame(body);
    std::string plain = seal.unseal(frame.token, frame.header_length);
    if (plain.size() != frame.plain_length) fail_malformed("its length is wrong");
    plain.resize(plain.find_last_not_of('\0') + 1);
    return plain;
}

}  // namespace tessarine
