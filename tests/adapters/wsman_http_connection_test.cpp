#include "adapters/wsman/http/http_connection.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

#include "core/runtime_error.h"
#include "wsman_scripted_host.h"

namespace tessarine {
namespace {

constexpr HttpPatience kPatience{std::chrono::seconds(1), std::chrono::seconds(20)};
const std::string kOk = "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok";

std::string failure_of(HttpConnection& connection) {
    try {
        return "no failure: " + connection.post({}, "", kPatience, nullptr).body;
    } catch (const RuntimeError& error) {
        return error.description();
    }
}

std::string failure_with(Last last) {
    const ScriptedHost host(std::vector{kOk}, last);
    HttpConnection connection(host.address());
    connection.post({}, "", kPatience, nullptr);
    return failure_of(connection);
}

TEST(HttpConnection, GivesUpHostsThatAreSilentOrEndless) {
    EXPECT_EQ(failure_with(Last::IsSilent), "The host doesn't answer (timed out)");
    EXPECT_EQ(failure_with(Last::Trickles), "The host doesn't answer (timed out)");
    EXPECT_EQ(failure_with(Last::NeverStops), "The host's answer is too large");
    std::string headers = "HTTP/1.1 200 OK\r\n";
    for (int i = 0; i < 2000; ++i) headers += "X-Header: " + std::string(80, 'x') + "\r\n";
    const ScriptedHost host(std::vector{headers}, Last::IsSilent);
    HttpConnection connection(host.address());
    EXPECT_EQ(failure_of(connection), "The host's answer is too large");
}

TEST(HttpConnection, IsNeverReplaced) {
    const ScriptedHost host(std::vector{kOk, kOk}, Last::Closes);
    HttpConnection connection(host.address());
    EXPECT_EQ(connection.post({}, "", kPatience, nullptr).body, "ok");
    EXPECT_EQ(connection.post({}, "", kPatience, nullptr).body, "ok");
    EXPECT_EQ(failure_of(connection), "The connection to the host is lost");
    EXPECT_EQ(failure_of(connection), "The connection to the host is lost");
    EXPECT_EQ(host.connections(), 1);
}

TEST(HttpConnection, SaysWhyThereIsNone) {
    std::optional<ScriptedHost> host;
    host.emplace(std::vector<std::string>{}, Last::Closes);
    const HostAddress address = host->address();
    host.reset();
    HttpConnection closed(address);
    EXPECT_EQ(failure_of(closed), "Port " + std::to_string(address.port) +
                                      " of the host is closed (connection refused)");
    HttpConnection unknown({"no-such-host.invalid", 5985});
    EXPECT_EQ(failure_of(unknown), "The host's name is unknown");
    const ScriptedHost other(std::vector<std::string>{"220 mail.example ready\r\n"}, Last::Closes);
    HttpConnection mail(other.address());
    EXPECT_NE(failure_of(mail).find("doesn't speak HTTP"), std::string::npos);
}

TEST(HttpConnection, FindsTheTokenAmongTheChallenges) {
    const ScriptedHost host(
        std::vector<std::string>{
            "HTTP/1.1 100 Continue\r\nWWW-Authenticate: Negotiate AAAA\r\n\r\n"
            "HTTP/1.1 401 No\r\nContent-Length: 0\r\nwww-authenticate: Basic "
            "realm=\"x\",Kerberos\r\n"
            "WWW-Authenticate: Negotiate, negotiate dG9rZW4=\r\n\r\n",
            "HTTP/1.1 401 No\r\nContent-Length: 0\r\nWWW-Authenticate: Negotiate\r\n\r\n",
            "HTTP/1.1 401 No\r\nContent-Length: 0\r\nWWW-Authenticate: Negotiated "
            "dG9rZW4=\r\n\r\n"},
        Last::Closes);
    HttpConnection connection(host.address());
    const HttpAnswer& first = connection.post({}, "", kPatience, nullptr);
    EXPECT_EQ(first.status, 401);
    EXPECT_EQ(first.negotiate_token(), "token");
    EXPECT_EQ(connection.post({}, "", kPatience, nullptr).negotiate_token(), "");
    EXPECT_EQ(connection.post({}, "", kPatience, nullptr).negotiate_token(), std::nullopt);
}

TEST(HttpConnection, LetsItsCallerActWhileItWaits) {
    const ScriptedHost host(std::vector<std::string>{}, Last::IsSilent);
    HttpConnection connection(host.address());
    int calls = 0;
    EXPECT_THROW(connection.post({}, "", kPatience, [&] { ++calls; }), RuntimeError);
    EXPECT_GE(calls, 5);
    EXPECT_THROW(connection.post({}, "", kPatience, [] { throw std::logic_error("enough"); }),
                 std::logic_error);
}

TEST(HostAddress, LeadsNowhereElse) {
    EXPECT_EQ(make_host_address("srv-1_a.example", 5985).url(),
              "http://srv-1_a.example:5985/wsman");
    EXPECT_EQ(make_host_address("10.0.0.7", 1).url(), "http://10.0.0.7:1/wsman");
    EXPECT_EQ(make_host_address("fe80::1", 5985).url(), "http://[fe80::1]:5985/wsman");
    for (const std::string host :
         {"", "a b", "a/b", "a@b", "a:80", "a#", "a?b", "\\\\a", "[::1]", "a%41", "\xFC", "a\r\nb"})
        EXPECT_THROW(make_host_address(host, 5985), RuntimeError) << host;
    EXPECT_THROW(make_host_address(std::string(256, 'a'), 5985), RuntimeError);
}

}  // namespace
}  // namespace tessarine
