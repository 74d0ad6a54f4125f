#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "adapters/wsman/basics/base64.h"
#include "adapters/wsman/sealed_channel.h"
#include "adapters/wsman/sign_in/gss_handles.h"
#include "adapters/wsman/sign_in/negotiation.h"
#include "adapters/wsman/sign_in/security_seal.h"
#include "core/runtime_error.h"
#include "wsman_scripted_host.h"

namespace tessarine {
namespace {

// The host's side of the sign-in, with one user.
class Acceptor {
  public:
    Acceptor() : users_(std::filesystem::temp_directory_path() / name()) {
        std::ofstream(users_) << "DOMAIN:user:p\xC3\xA4ssword\n";
        setenv("NTLM_USER_FILE", users_.c_str(), 1);
    }
    ~Acceptor() {
        unsetenv("NTLM_USER_FILE");
        std::filesystem::remove(users_);
    }

    // The host's next token for one of the user's; nothing when it refuses.
    std::optional<std::string> answer(std::string_view token) {
        gss_buffer_desc input = gss_input(token);
        GssBuffer output;
        OM_uint32 minor = 0;
        const OM_uint32 major = gss_accept_sec_context(
            &minor, context_.address(), GSS_C_NO_CREDENTIAL, &input, GSS_C_NO_CHANNEL_BINDINGS,
            nullptr, nullptr, output.address(), nullptr, nullptr, nullptr);
        complete_ = !GSS_ERROR(major) && (major & GSS_S_CONTINUE_NEEDED) == 0;
        return GSS_ERROR(major) ? std::nullopt : std::optional(output.text());
    }

    bool is_complete() const { return complete_; }

    // Whether the sign-in went through.
    bool accepts(Negotiation& negotiation) {
        std::string token = negotiation.next_token("");
        while (!complete_) {
            const auto reply = answer(token);
            if (!reply) return false;
            if (!reply->empty()) token = negotiation.next_token(*reply);
        }
        return negotiation.is_complete();
    }

    gss_ctx_id_t context() const { return context_.get(); }

  private:
    static std::string name() { return "tessarine-users-" + std::to_string(getpid()); }

    std::filesystem::path users_;
    GssContext context_;
    bool complete_ = false;
};

const Credentials kUser{"DOMAIN\\user", "p\xE4ssword"};

bool refuses(MessageSeal& seal, const SealedMessage& message) {
    try {
        seal.unseal(message.token, message.header_length);
        return false;
    } catch (const RuntimeError&) {
        return true;
    }
}

TEST(SecuritySeal, SealsBothWays) {
    Acceptor acceptor;
    Negotiation negotiation("127.0.0.1", kUser);
    ASSERT_TRUE(acceptor.accepts(negotiation));
    SecuritySeal ours(negotiation.context());
    SecuritySeal hosts(acceptor.context());
    const std::string plain(100'000, 'p');
    for (int i = 0; i < 3; ++i) {
        const std::string request = encrypt_message(ours, plain);
        EXPECT_EQ(request.find(std::string(16, 'p')), std::string::npos);
        EXPECT_EQ(decrypt_message(hosts, request), plain);
        EXPECT_EQ(decrypt_message(ours, encrypt_message(hosts, "answer")), "answer");
    }
}

TEST(SecuritySeal, IsBrokenByAChangeAndByARepetition) {
    Acceptor changing;
    Negotiation first("127.0.0.1", kUser);
    ASSERT_TRUE(changing.accepts(first));
    SecuritySeal ours(first.context());
    SealedMessage changed = SecuritySeal(changing.context()).seal("answer");
    changed.token.back() = static_cast<char>(changed.token.back() ^ 1);
    EXPECT_TRUE(refuses(ours, changed));

    Acceptor repeating;
    Negotiation second("127.0.0.1", kUser);
    ASSERT_TRUE(repeating.accepts(second));
    SecuritySeal other(second.context());
    const SealedMessage once = SecuritySeal(repeating.context()).seal("answer");
    EXPECT_FALSE(refuses(other, once));
    EXPECT_TRUE(refuses(other, once));
    SealedMessage headless = SecuritySeal(repeating.context()).seal("answer");
    headless.header_length = 0;
    EXPECT_TRUE(refuses(other, headless));
}

TEST(Negotiation, IsRefusedWithAnotherPassword) {
    Acceptor acceptor;
    Negotiation wrong("127.0.0.1", Credentials{kUser.user, "password"});
    EXPECT_FALSE(acceptor.accepts(wrong));
}

TEST(Negotiation, SaysWhatIsMissing) {
    const auto failure = [](const std::optional<Credentials>& credentials) -> std::string {
        try {
            Negotiation negotiation("127.0.0.1", credentials);
            negotiation.next_token("");
            return "no failure";
        } catch (const RuntimeError& error) {
            return error.description();
        }
    };
    EXPECT_EQ(failure(Credentials{"user", ""}), "The alternate user has no password");
    EXPECT_EQ(
        failure(std::nullopt),
        "A ticket is of no use for a host that is given by its address: use its name, or give "
        "an alternate user");
    // The system's own user counts, also where an alternate user is asked for without a name.
    const Acceptor with_system_user;
    EXPECT_EQ(failure(std::nullopt), "no failure");
    EXPECT_EQ(failure(Credentials{"", ""}), "no failure");
}

const std::string kAsksForSignIn =
    "HTTP/1.1 401 Who?\r\nWWW-Authenticate: Negotiate\r\nContent-Length: 0\r\n\r\n";

// A channel to a host that signs the user in and then answers each message with `text`.
std::string failure_after_sign_in(const std::string& text) {
    Acceptor acceptor;
    const auto reply = [&](const std::string& request) -> std::optional<std::string> {
        if (acceptor.is_complete()) return text;
        const std::string scheme = "Authorization: Negotiate ";
        if (request.find(scheme) == std::string::npos) return kAsksForSignIn;
        const std::size_t begin = request.find(scheme) + scheme.size();
        const std::size_t end = request.find("\r\n", begin);
        const auto token =
            acceptor.answer(decode_base64(request.substr(begin, end - begin)).value());
        return "HTTP/1.1 " + std::string(acceptor.is_complete() ? "200 OK" : "401 More") +
               "\r\nWWW-Authenticate: Negotiate " + encode_base64(token.value_or("")) +
               "\r\nContent-Length: 0\r\n\r\n";
    };
    const ScriptedHost host(reply, Last::Closes);
    SealedChannel channel(host.address(), kUser, std::chrono::seconds(60), nullptr,
                          PartHeaderIndent::Tab);
    channel.open();
    try {
        return "no failure: " + channel.exchange("secret");
    } catch (const RuntimeError& error) {
        EXPECT_FALSE(channel.is_usable());
        EXPECT_THROW(channel.exchange("secret"), RuntimeError);
        return error.description();
    }
}

TEST(SealedChannel, TakesNothingInTheClear) {
    const std::string body = "Content-Length: 13\r\n\r\n<s:Envelope/>";
    EXPECT_EQ(failure_after_sign_in("HTTP/1.1 200 OK\r\n" + body),
              "The host's answer is not encrypted (HTTP status 200)");
    EXPECT_EQ(failure_after_sign_in("HTTP/1.1 500 Fault\r\n" + body),
              "The host's answer is not encrypted (HTTP status 500)");
    EXPECT_EQ(failure_after_sign_in("HTTP/1.1 401 Again\r\n" + body),
              "The host asks for a new sign-in in mid-session");
    EXPECT_EQ(
        failure_after_sign_in("HTTP/1.1 200 OK\r\nContent-Type: multipart/encrypted\r\n" + body),
        "The encrypted message is malformed: it has no sealed part");
}

TEST(SealedChannel, SaysWhyASignInFails) {
    const auto failure = [](const std::string& answer, const std::string& before = "") {
        std::vector<std::string> answers{"HTTP/1.1 " + answer + "Content-Length: 0\r\n\r\n"};
        if (!before.empty()) answers.insert(answers.begin(), before);
        const ScriptedHost host(answers, Last::Closes);
        SealedChannel channel(host.address(), kUser, std::chrono::seconds(60), nullptr,
                              PartHeaderIndent::Tab);
        try {
            channel.open();
            return std::string("no failure");
        } catch (const RuntimeError& error) {
            return error.description();
        }
    };
    EXPECT_EQ(failure("200 OK\r\n"), "The host answered with HTTP status 200");
    EXPECT_EQ(failure("200 OK\r\n", kAsksForSignIn), "The host ended the sign-in too early");
    EXPECT_EQ(failure("404 Not found\r\n"),
              "The host has no WS-Management service at this address");
    EXPECT_EQ(failure("401 No\r\nWWW-Authenticate: Basic\r\n"),
              "The host offers no integrated sign-in (Negotiate)");
    EXPECT_EQ(failure("401 No\r\nWWW-Authenticate: Negotiate\r\n", kAsksForSignIn),
              "The host refused the credentials");
}

TEST(Base64, ReadsWhatItWritesAndNothingElse) {
    for (std::size_t length = 0; length < 6; ++length) {
        const std::string bytes = std::string("\0\xFF\n=A", 5).substr(0, length);
        EXPECT_EQ(decode_base64(encode_base64(bytes)), bytes);
    }
    EXPECT_EQ(encode_base64("token"), "dG9rZW4=");
    for (const char* text : {"dG9rZW4", "dG9r ZW4", "====", "dG=r", "dG9rZW4=\n", "dG9rZ===",
                             "\xFC"
                             "aaa"})
        EXPECT_EQ(decode_base64(text), std::nullopt) << text;
}

}  // namespace
}  // namespace tessarine
