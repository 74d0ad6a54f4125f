// The seal of a Kerberos sign-in. It needs a domain, which network/kerberos_domain.sh makes: there
// the user has a ticket, and KRB5_KTNAME is the file with the key of the host "websrv02".
#include <gssapi/gssapi_ext.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "adapters/wsman/sign_in/gss_handles.h"
#include "adapters/wsman/sign_in/negotiation.h"
#include "adapters/wsman/sign_in/security_seal.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

// Both sides of a sign-in that has gone through.
class KerberosSeal : public testing::Test {
  protected:
    void SetUp() override {
        if (std::getenv("KRB5_KTNAME") == nullptr) GTEST_SKIP() << "there is no Kerberos domain";
        user_.emplace("websrv02", std::nullopt);
        for (std::string token = user_->next_token(""); !token.empty();)
            token = user_->next_token(answer(token));
        ours_.emplace(user_->context());
        hosts_.emplace(host_.get());
    }

    std::string answer(const std::string& token) {
        gss_buffer_desc input = gss_input(token);
        GssBuffer output;
        OM_uint32 minor = 0;
        const OM_uint32 major = gss_accept_sec_context(
            &minor, host_.address(), GSS_C_NO_CREDENTIAL, &input, GSS_C_NO_CHANNEL_BINDINGS,
            nullptr, nullptr, output.address(), nullptr, nullptr, nullptr);
        EXPECT_FALSE(GSS_ERROR(major));
        return output.text();
    }

    std::string failure_of(const SealedMessage& message) {
        try {
            return "no failure: " + ours_->unseal(message.token, message.header_length);
        } catch (const RuntimeError& error) {
            return error.description();
        }
    }

    // Signed, and readable by everybody.
    SealedMessage signed_alone(std::string text) {
        std::array<gss_iov_buffer_desc, 2> pieces{
            {{GSS_IOV_BUFFER_TYPE_HEADER | GSS_IOV_BUFFER_FLAG_ALLOCATE, {0, nullptr}},
             {GSS_IOV_BUFFER_TYPE_DATA, {text.size(), text.data()}}}};
        OM_uint32 minor = 0;
        EXPECT_FALSE(GSS_ERROR(gss_wrap_iov(&minor, host_.get(), 0, GSS_C_QOP_DEFAULT, nullptr,
                                            pieces.data(), static_cast<int>(pieces.size()))));
        const gss_buffer_desc& header = pieces[0].buffer;
        const SealedMessage message{
            std::string(static_cast<const char*>(header.value), header.length) + text,
            header.length, text.size()};
        gss_release_iov_buffer(&minor, pieces.data(), static_cast<int>(pieces.size()));
        return message;
    }

    std::optional<Negotiation> user_;
    GssContext host_;
    std::optional<SecuritySeal> ours_, hosts_;
};

const std::string kOutOfOrder = "The message can't be decrypted: it is out of order";

TEST_F(KerberosSeal, IsBrokenByARepetition) {
    const SealedMessage once = hosts_->seal("answer");
    EXPECT_EQ(failure_of(once), "no failure: answer");
    EXPECT_EQ(failure_of(once), kOutOfOrder);
}

TEST_F(KerberosSeal, IsBrokenByAnotherOrder) {
    const SealedMessage first = hosts_->seal("first");
    EXPECT_EQ(failure_of(hosts_->seal("second")), kOutOfOrder);
    EXPECT_EQ(failure_of(first), kOutOfOrder);
}

TEST_F(KerberosSeal, IsBrokenByAChange) {
    SealedMessage changed = hosts_->seal("answer");
    changed.token.back() = static_cast<char>(changed.token.back() ^ 1);
    EXPECT_TRUE(failure_of(changed).starts_with("The message can't be decrypted: "));
}

TEST_F(KerberosSeal, MustBeOneThatEncrypts) {
    const SealedMessage message = signed_alone("answer");
    ASSERT_NE(message.token.find("answer"), std::string::npos);
    EXPECT_EQ(failure_of(message), "The message can't be decrypted: it would not be encrypted");
}

}  // namespace
}  // namespace tessarine
