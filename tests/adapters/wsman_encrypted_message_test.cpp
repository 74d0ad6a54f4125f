#include "adapters/wsman/sign_in/encrypted_message.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/runtime_error.h"

namespace tessarine {
namespace {

// Turns each byte's bits over and puts four bytes in front.
class InvertingSeal final : public MessageSeal {
  public:
    SealedMessage seal(std::string_view plain) override {
        return {"SIGN" + inverted(plain), 4, plain.size()};
    }
    std::string unseal(std::string_view token, std::size_t header_length) override {
        EXPECT_EQ(token.substr(0, header_length), "SIGN");
        return inverted(token.substr(header_length));
    }

    static std::string inverted(std::string_view text) {
        std::string other(text);
        for (char& c : other) c = static_cast<char>(~c);
        return other;
    }
};

std::string body_with(const std::string& length, const std::string& sealed) {
    return "--Encrypted Boundary\r\n"
           "\tContent-Type: application/HTTP-SPNEGO-session-encrypted\r\n"
           "\tOriginalContent: type=application/soap+xml;charset=UTF-8;Length=" +
           length +
           "\r\n"
           "--Encrypted Boundary\r\n"
           "\tContent-Type: application/octet-stream\r\n" +
           sealed;
}

const std::string kHeaderLength("\4\0\0\0", 4);
const std::string kEnd = "--Encrypted Boundary--\r\n";

std::string decrypted(const std::string& body) {
    InvertingSeal seal;
    return decrypt_message(seal, body);
}

std::string failure_of(const std::string& body) {
    try {
        return "no failure: " + decrypted(body);
    } catch (const RuntimeError& error) {
        return error.description();
    }
}

TEST(EncryptedMessage, HasTheFormThatHostsDemand) {
    InvertingSeal seal;
    EXPECT_EQ(encrypt_message(seal, "plain"),
              body_with("5", kHeaderLength + "SIGN" + InvertingSeal::inverted("plain") + kEnd));
}

TEST(EncryptedMessage, IsReadInTheFormsThatHostsWrite) {
    const std::string sealed = kHeaderLength + "SIGN" + InvertingSeal::inverted("plain");
    const std::string tabbed = body_with("5", sealed + kEnd);
    EXPECT_EQ(decrypted(tabbed), "plain");
    std::string bare = tabbed;
    bare.erase(std::remove(bare.begin(), bare.end(), '\t'), bare.end());
    EXPECT_EQ(decrypted(bare), "plain");
    EXPECT_EQ(decrypted(body_with("5", sealed + "-- Encrypted Boundary--\r\n")), "plain");
    EXPECT_EQ(decrypted(body_with("5", sealed + "--Encrypted Boundary--")), "plain");
    const std::string padded("plain\0\0\0", 8);
    InvertingSeal seal;
    EXPECT_EQ(decrypted(encrypt_message(seal, padded, PartHeaderIndent::None)), "plain");
}

TEST(EncryptedMessage, MayContainItsOwnBoundaryUnderTheSeal) {
    const std::string plain = InvertingSeal::inverted(
        "Length=7\r\n--Encrypted Boundary--\r\nContent-Type: application/octet-stream\r\n--");
    InvertingSeal seal;
    EXPECT_EQ(decrypted(encrypt_message(seal, plain)), plain);
}

TEST(EncryptedMessage, IsRefusedWhenMalformed) {
    const std::string sealed = kHeaderLength + "SIGN" + InvertingSeal::inverted("plain");
    const std::string good = body_with("5", sealed + kEnd);
    for (const char* length : {"6", "4", "0"})
        EXPECT_EQ(failure_of(body_with(length, sealed + kEnd)),
                  "The encrypted message is malformed: its length is wrong");
    EXPECT_EQ(failure_of(body_with("x", sealed + kEnd)),
              "The encrypted message is malformed: its length is no number");
    EXPECT_EQ(failure_of(body_with("5", sealed)),
              "The encrypted message is malformed: its end is missing");
    EXPECT_EQ(failure_of(body_with("5", "\xFF\xFF\xFF\xFFSIGN" + kEnd)),
              "The encrypted message is malformed: its seal is longer than its sealed part");
    EXPECT_EQ(failure_of(body_with("5", "\4" + kEnd)),
              "The encrypted message is malformed: its sealed part is cut off");
    // Whatever is missing at the end: a failure in words, and no byte read after it.
    for (std::size_t length = 0; length + 4 < good.size(); ++length)
        EXPECT_THROW(decrypted(good.substr(0, length)), RuntimeError) << length;
}

}  // namespace
}  // namespace tessarine
