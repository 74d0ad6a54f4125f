#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include "sample_network/wire/http_exchange.h"

namespace tessarine::sample {
namespace {

// A connection whose other end the test holds.
class SampleHttp : public testing::Test {
  protected:
    SampleHttp() : stop_(eventfd(0, EFD_CLOEXEC)) {
        int ends[2];
        checked(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), "socketpair");
        client_ = FileDescriptor(ends[0]);
        connection_.emplace(FileDescriptor(ends[1]), stop_.get());
    }

    void send(const std::string& bytes) {
        ASSERT_EQ(write(client_.get(), bytes.data(), bytes.size()),
                  static_cast<ssize_t>(bytes.size()));
    }

    FileDescriptor stop_;
    FileDescriptor client_;
    std::optional<SocketConnection> connection_;
};

TEST_F(SampleHttp, GivesUpOnWhatHasNoEnd) {
    for (const std::string& request :
         {std::string("POST / HTTP/1.1\r\nContent-Length: 1048577\r\n\r\n"),
          std::string("POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n"),
          std::string("POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n"),
          std::string(70'000, 'x')}) {
        send(request);
        EXPECT_THROW(HttpReader(*connection_).read(), ConnectionEnded) << request.substr(0, 60);
    }
}

TEST_F(SampleHttp, EndsWithTheClientAndWithTheServer) {
    send("POST / HTTP/1.1\r\n");
    client_ = FileDescriptor();
    EXPECT_THROW(HttpReader(*connection_).read(), ConnectionEnded);
    eventfd_write(stop_.get(), 1);
    EXPECT_THROW(connection_->write("too late"), ConnectionEnded);
}

}  // namespace
}  // namespace tessarine::sample
