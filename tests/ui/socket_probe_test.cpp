// The connection attempt against real sockets on loopback.
#include "adapters/qt/socket_probe.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTest>

namespace tessarine {
namespace {

// A listening socket of the test, which says what becomes of a connection.
class Listener {
  public:
    Listener() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* plain = reinterpret_cast<sockaddr*>(&address);
        socklen_t size = sizeof address;
        if (::bind(socket_, plain, size) != 0 || ::listen(socket_, 4) != 0 ||
            ::getsockname(socket_, plain, &size) != 0)
            throw std::runtime_error("no listener");
        port_ = ntohs(address.sin_port);
    }
    ~Listener() { stop(); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    int port() const { return port_; }
    int accept() const { return ::accept(socket_, nullptr, nullptr); }
    bool has_caller() const {
        pollfd waiting{.fd = socket_, .events = POLLIN, .revents = 0};
        return ::poll(&waiting, 1, 0) == 1;
    }
    void stop() {
        if (socket_ != -1) ::close(socket_);
        socket_ = -1;
    }

  private:
    int socket_;
    int port_ = 0;
};

struct Seen {
    int connected = 0;
    int failed = 0;
    TcpProbe::Events events() {
        return {.connected = [this] { ++connected; }, .failed = [this] { ++failed; }};
    }
    int all() const { return connected + failed; }
};

constexpr int kSettle = 100;

void reset(int peer) {
    const linger at_once{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(peer, SOL_SOCKET, SO_LINGER, &at_once, sizeof at_once);
    ::close(peer);
}

TEST(SocketProbe, APeerThatClosesStaysConnectedOneThatResetsFails) {
    for (const bool resets : {false, true}) {
        Listener listener;
        Seen seen;
        SocketProbe probe;
        probe.connect("127.0.0.1", listener.port(), seen.events());
        ASSERT_TRUE(QTest::qWaitFor([&] { return seen.connected == 1; }));
        const int peer = listener.accept();
        if (resets)
            reset(peer);
        else
            ::close(peer);
        QTest::qWait(kSettle);
        EXPECT_EQ(seen.connected, 1);
        EXPECT_EQ(seen.failed, resets ? 1 : 0);
    }
}

TEST(SocketProbe, ARefusedConnectionAndAnUnknownNameFail) {
    Listener listener;
    const int port = listener.port();
    listener.stop();
    for (const char* host : {"127.0.0.1", "no-such-host.invalid", "", "256.1.1.1"}) {
        Seen seen;
        SocketProbe probe;
        probe.connect(host, port, seen.events());
        EXPECT_TRUE(QTest::qWaitFor([&] { return seen.all() > 0; })) << host;
        EXPECT_EQ(seen.failed, 1) << host;
        EXPECT_EQ(seen.connected, 0) << host;
    }
}

TEST(SocketProbe, NothingFollowsAClose) {
    Listener listener;
    Seen seen;
    SocketProbe probe;
    probe.connect("localhost", listener.port(), seen.events());
    ASSERT_TRUE(QTest::qWaitFor([&] { return seen.connected == 1; }));
    const int peer = listener.accept();
    probe.close();
    char byte = 0;
    EXPECT_EQ(::recv(peer, &byte, 1, MSG_DONTWAIT), 0) << "the connection is still open";
    reset(peer);

    probe.connect("localhost", listener.port(), seen.events());
    probe.close();
    QTest::qWait(kSettle);
    EXPECT_FALSE(listener.has_caller()) << "the late answer to the look-up led to a connection";
    EXPECT_EQ(seen.all(), 1);
}

TEST(SocketProbe, CanBeClosedByItsOwnEventAndUsedAgain) {
    Listener listener;
    SocketProbe probe;
    for (int attempt = 0; attempt < 2; ++attempt) {
        bool connected = false;
        probe.connect("127.0.0.1", listener.port(),
                      {.connected =
                           [&] {
                               probe.close();
                               connected = true;
                           },
                       .failed = {}});
        EXPECT_TRUE(QTest::qWaitFor([&] { return connected; }));
    }
}

}  // namespace
}  // namespace tessarine
