// Hosts with TLS alone: whom the console trusts, and what the others get to hear of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <mutex>

#include "adapters/wsman/wsman_event_source.h"
#include "core/runtime_error.h"
#include "sample_network/built_in_hosts.h"
#include "sample_network/sample_network.h"
#include "sample_network/scratch_file.h"
#include "sample_network/wire/tcp_socket.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::sample {
namespace {

const Credentials kAuditor{std::string(kSampleDomain) + "\\" + kSampleUser, kSamplePassword};

// A port with a certificate that keeps what it hears, and answers each request with `answer`.
class TlsPort {
  public:
    explicit TlsPort(const TlsIdentity& identity, std::string answer = {})
        : server_(identity), answer_(std::move(answer)) {}

    SSL_CTX* context() const { return server_.context(); }
    std::uint16_t port() const { return listener_.port(); }
    std::string heard() {
        const std::lock_guard lock(mutex_);
        return heard_;
    }

  private:
    void serve(Connection& carrier) {
        TlsConnection tls(carrier, server_);
        for (std::array<char, 4096> bytes;;) {
            const std::size_t count = tls.read_some(bytes, std::chrono::seconds(10));
            {
                const std::lock_guard lock(mutex_);
                heard_.append(bytes.data(), count);
            }
            if (answer_.empty()) return;
            tls.write(answer_);
        }
    }

    TlsServer server_;
    std::string answer_;
    std::mutex mutex_;
    std::string heard_;
    ConnectionServer listener_{"127.0.0.1", 0, [this](Connection& carrier) { serve(carrier); }};
};

class TlsHost : public testing::Test {
  protected:
    WsmanOptions options(std::uint16_t tls_port) const {
        WsmanOptions options;
        options.port = port_of(closed_);
        options.tls_port = tls_port;
        options.authorities = trusted_.path();
        return options;
    }

    static std::string failure(const WsmanOptions& options,
                               const std::string& host = "localhost") try {
        WsmanEventSource(options).connect_server(host, "root\\cimv2", kAuditor);
        return "no failure";
    } catch (const RuntimeError& error) {
        return error.description();
    }

    UserList users_;
    CertificateAuthority authority_;
    ScratchFile trusted_{authority_.pem()};
    FileDescriptor closed_ = bind_socket("127.0.0.1", 0);
};

TEST_F(TlsHost, IsAuditedWhereThePlainPortIsClosed) {
    std::vector<SampleHost> hosts = only_hosts(built_in_hosts({}, 20), {"GATEWAY01", "FILESRV01"});
    SampleNetwork network(hosts, authority_);
    const std::string place = network.listen_loopback(0).front();
    const auto port = static_cast<std::uint16_t>(std::stoi(place.substr(place.rfind(':') + 1)));
    WsmanOptions with_tls = options(port);
    const FileDescriptor closed = bind_socket(hosts.front().address, 0);
    with_tls.port = port_of(closed);
    const auto service =
        WsmanEventSource(with_tls).connect_server(hosts.front().address, "root\\cimv2", kAuditor);
    const auto result = service->exec_query("SELECT * FROM Win32_NTLogEvent");
    EventProperties event;
    std::size_t count = 0;
    while (result->next(event)) ++count;
    EXPECT_EQ(count, 500u);

    const Credentials wrong{kAuditor.user, "wrong"};
    EXPECT_THROW(
        WsmanEventSource(with_tls).connect_server(hosts.front().address, "root\\cimv2", wrong),
        RuntimeError);
}

TEST_F(TlsHost, HearsNothingBeforeItsCertificateIsTrusted) {
    const std::string trust =
        ". To trust it, put the certificate of its authority as a .crt file into "
        "/usr/local/share/ca-certificates and run update-ca-certificates as root";
    struct Case {
        TlsIdentity identity;
        std::string text;
    };
    const Case cases[] = {
        {authority_.identity({"other.example", "127.0.0.2"}),
         "The host's certificate is for another name than the one it was called by"},
        {authority_.identity({"localhost", "", -10, -1}), "The host's certificate has expired"},
        {authority_.identity({"localhost", "", 1, 10}), "The host's certificate is not valid yet"},
        {self_signed_identity({"localhost", ""}),
         "The host's certificate is signed by itself, and by no authority" + trust},
        {CertificateAuthority().identity({"localhost", ""}),
         "The host's certificate is from an authority that this machine doesn't know" + trust},
    };
    for (const auto& [identity, text] : cases) {
        TlsPort host(identity);
        EXPECT_EQ(failure(options(host.port())), text);
        EXPECT_EQ(host.heard(), "") << text;
    }
    TlsPort trusted(authority_.identity({"localhost", ""}));
    EXPECT_EQ(failure(options(trusted.port())), "The connection to the host is lost");
    EXPECT_THAT(trusted.heard(), testing::StartsWith("POST /wsman"));
    EXPECT_THAT(trusted.heard(), testing::Not(testing::HasSubstr("Authorization")));
}

TEST_F(TlsHost, IsNotLeftForAWeakerWay) {
    const TlsIdentity identity = authority_.identity({"localhost", ""});
    TlsPort old(identity);
    SSL_CTX_set_security_level(old.context(), 0);
    SSL_CTX_set_max_proto_version(old.context(), TLS1_1_VERSION);
    EXPECT_EQ(failure(options(old.port())), "What answers on port " + std::to_string(old.port()) +
                                                " of the host doesn't speak TLS 1.2 or later");

    TlsPort elsewhere(identity,
                      "HTTP/1.1 302 Found\r\nLocation: http://localhost/wsman\r\n"
                      "Content-Length: 0\r\n\r\n");
    EXPECT_EQ(failure(options(elsewhere.port())),
              "The host refers to another address, which is not followed (HTTP status 302)");

    TlsPort basic(identity,
                  "HTTP/1.1 401 Who?\r\nWWW-Authenticate: Basic realm=\"WSMAN\"\r\n"
                  "Content-Length: 0\r\n\r\n");
    EXPECT_EQ(failure(options(basic.port())), "The host offers no integrated sign-in (Negotiate)");
    EXPECT_THAT(basic.heard(), testing::Not(testing::HasSubstr("Authorization")));
}

TEST_F(TlsHost, IsToldFromOtherPorts) {
    const auto speaks_no_tls = [](Connection& connection) {
        std::array<char, 4096> bytes;
        connection.read_some(bytes, std::chrono::seconds(10));
        connection.write("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n");
    };
    const ConnectionServer plain("127.0.0.1", 0, speaks_no_tls);
    EXPECT_EQ(failure(options(plain.port())), "What answers on port " +
                                                  std::to_string(plain.port()) +
                                                  " of the host doesn't speak TLS 1.2 or later");

    const WsmanOptions closed = options(port_of(closed_));
    EXPECT_EQ(failure(closed), "Ports " + std::to_string(closed.port) + " and " +
                                   std::to_string(closed.tls_port) +
                                   " of the host are closed (connection refused)");
}

}  // namespace
}  // namespace tessarine::sample
