// The sample hosts over real sockets, with a real sign-in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <charconv>

#include "adapters/wsman/sealed_channel.h"
#include "core/runtime_error.h"
#include "sample_network/built_in_hosts.h"
#include "sample_network/sample_network.h"
#include "sample_network/wire/negotiate_acceptor.h"
#include "sample_network/wire/tcp_socket.h"
#include "sample_network/wire/user_list.h"
#include "tests/network/sample_requests.h"

namespace tessarine::sample {
namespace {

const Credentials kAuditor{std::string(kSampleDomain) + "\\" + kSampleUser, kSamplePassword};

class SampleServer : public testing::Test {
  protected:
    SampleServer() : network_(built_in_hosts(Instant{*parse_day("2026-11-20")}, 20), authority_) {
        for (const std::string& place : network_.listen_loopback(0))
            places_.push_back(place.substr(place.find('=') + 1));
    }

    std::string address(std::size_t host) const {
        return places_[host].substr(0, places_[host].find(':'));
    }

    std::uint16_t port(std::size_t host) const {
        return static_cast<std::uint16_t>(
            std::stoi(places_[host].substr(places_[host].find(':') + 1)));
    }

    std::unique_ptr<SealedChannel> channel(std::size_t host, const Credentials& credentials) {
        return std::make_unique<SealedChannel>(make_host_address(address(host), port(host)),
                                               credentials, std::chrono::seconds(10), nullptr,
                                               PartHeaderIndent::Tab);
    }

    UserList users_;
    CertificateAuthority authority_;
    SampleNetwork network_;
    std::vector<std::string> places_;
};

constexpr std::size_t kEnglish = 0, kLarge = 4, kNoService = 5, kDown = 6, kDenied = 7,
                      kWorkgroup = 11;

TEST_F(SampleServer, ServesConnectionsSideBySideAndEndsThem) {
    const auto one = channel(kLarge, kAuditor);
    const auto other = channel(kLarge, kAuditor);
    one->open();
    other->open();
    const std::string from_one = context_in(one->exchange(enumerate_message(kAllEvents)));
    other->exchange(enumerate_message(kAllEvents));
    EXPECT_EQ(values_in(one->exchange(pull_message(from_one, 3)), "RecordNumber").size(), 3u);
    // Both are still open when the network ends.
}

TEST_F(SampleServer, RefusesWhoIsNotOnTheList) {
    EXPECT_THROW(channel(kEnglish, {kAuditor.user, "wrong"})->open(), RuntimeError);
    EXPECT_THROW(channel(kEnglish, {"SAMPLE\\nobody", kAuditor.password})->open(), RuntimeError);
    const auto denied = channel(kDenied, kAuditor);
    denied->open();
    EXPECT_THAT(denied->exchange(enumerate_message(kAllEvents)),
                testing::HasSubstr("w:AccessDenied"));
}

TEST_F(SampleServer, KnowsTheUserOfAWorkgroupHostThereAlone) {
    const std::string local = std::string(kWorkgroupHost) + "\\" + kWorkgroupUser;
    for (const std::string& user : {local, std::string(".\\") + kWorkgroupUser}) {
        EXPECT_NO_THROW(channel(kWorkgroup, {user, kSamplePassword})->open()) << user;
        EXPECT_THROW(channel(kEnglish, {user, kSamplePassword})->open(), RuntimeError) << user;
    }
    EXPECT_THROW(channel(kWorkgroup, kAuditor)->open(), RuntimeError);
}

TEST(SampleAcceptor, RefusesWhatIsNoToken) {
    NegotiateAcceptor acceptor;
    for (const char* header : {"Basic YTpi", "Negotiate", "Negotiate !", "Negotiate YWJj"}) {
        EXPECT_EQ(acceptor.accept(header).handshake, Handshake::Refused) << header;
        EXPECT_EQ(acceptor.context(), GSS_C_NO_CONTEXT) << header;
    }
}

TEST_F(SampleServer, WantsSealedMessages) {
    const auto status = [&](const std::string& request) {
        const FileDescriptor connecting = begin_connect(address(kEnglish), port(kEnglish));
        pollfd watched{connecting.get(), POLLOUT, 0};
        poll(&watched, 1, 5000);
        EXPECT_GT(write(connecting.get(), request.data(), request.size()), 0);
        watched.events = POLLIN;
        poll(&watched, 1, 5000);
        char answer[100] = {};
        EXPECT_GE(read(connecting.get(), answer, sizeof answer - 1), 0);
        return std::string(answer).substr(0, 12);
    };
    EXPECT_EQ(status("POST /wsman HTTP/1.1\r\nContent-Length: 4\r\n\r\n<s/>"), "HTTP/1.1 500");
    EXPECT_EQ(status("POST /wsman HTTP/1.1\r\nContent-Length: 0\r\n\r\n"), "HTTP/1.1 401");
    EXPECT_EQ(status("POST /wsman HTTP/1.1\r\ncontent-length: 4\r\n"
                     "Content-Type: multipart/encrypted\r\n\r\n\x01\x02\x03\x04"),
              "HTTP/1.1 401");
    EXPECT_EQ(status("GET /wsman HTTP/1.1\r\n\r\n"), "HTTP/1.1 405");
    EXPECT_EQ(status("POST /wsman HTTP/1.1\r\nContent-Length: 99999999\r\n\r\n"), "");
}

TEST_F(SampleServer, PlaysClosedAndDownHosts) {
    const auto answered = [&](std::size_t host) {
        const FileDescriptor connecting = begin_connect(address(host), port(host));
        pollfd watched{connecting.get(), POLLOUT, 0};
        return connecting.get() >= 0 && poll(&watched, 1, 300) > 0;
    };
    EXPECT_TRUE(answered(kNoService));  // Refusing is an answer.
    EXPECT_FALSE(answered(kDown));
    EXPECT_THROW(channel(kNoService, kAuditor)->open(), RuntimeError);
}

}  // namespace
}  // namespace tessarine::sample
