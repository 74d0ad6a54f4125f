// The frame around an encrypted message, with a seal that hides nothing.
#include <string>

#include "adapters/wsman/sign_in/encrypted_message.h"
#include "fuzz/promises.h"

namespace tessarine::fuzz {
namespace {

// Takes the front of each message for its header, and looks at what the frame hands over.
class OpenSeal final : public MessageSeal {
  public:
    /// `body` is what the token must be a part of, where there is one.
    OpenSeal(std::size_t header_length, std::string_view body)
        : header_length_(header_length), body_(body) {}

    SealedMessage seal(std::string_view plain) override {
        return {std::string(header_length_, 'H') + std::string(plain), header_length_,
                plain.size()};
    }

    std::string unseal(std::string_view token, std::size_t header_length) override {
        hold(header_length <= token.size(), "a token is as long as its header at least");
        hold(token.data() >= body_.data() &&
                 token.data() + token.size() <= body_.data() + body_.size(),
             "a token is a part of the body");
        return std::string(token.substr(header_length));
    }

  private:
    std::size_t header_length_;
    std::string_view body_;
};

std::string without_fill(std::string_view plain) {
    return std::string(plain.substr(0, plain.find_last_not_of('\0') + 1));
}

void hold_for_round_trip(std::string_view plain, std::size_t header_length) {
    for (const auto indent : {PartHeaderIndent::Tab, PartHeaderIndent::None}) {
        OpenSeal sender(header_length, {});
        const std::string body = encrypt_message(sender, plain, indent);
        OpenSeal receiver(header_length, body);
        hold(decrypt_message(receiver, body) == without_fill(plain),
             "a message arrives as it was sent");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view body = text_of(data, size);
    OpenSeal seal(0, body);
    succeeds([&] {
        const std::string plain = decrypt_message(seal, body);
        hold(plain == without_fill(plain), "a message has no fill");
    });
    hold_for_round_trip(body, size == 0 ? 0 : data[0]);
    return 0;
}

}  // namespace tessarine::fuzz
