#include "sample_network/wire/silent_port.h"

#include <poll.h>
#include <sys/socket.h>

#include "sample_network/wire/tcp_socket.h"

namespace tessarine::sample {
namespace {

constexpr int kMostQueued = 8;
constexpr int kConnectMilliseconds = 50;

bool is_made(const FileDescriptor& connecting) {
    pollfd watched{connecting.get(), POLLOUT, 0};
    return connecting.get() >= 0 && poll(&watched, 1, kConnectMilliseconds) > 0;
}

}  // namespace

SilentPort::SilentPort(const std::string& address, std::uint16_t port)
    : listener_(bind_socket(address, port)), port_(port_of(listener_)) {
    checked(listen(listener_.get(), 0), "listen");
    for (int i = 0; i < kMostQueued; ++i) {
        FileDescriptor connecting = begin_connect(address, port_);
        if (!is_made(connecting)) return;
        queued_.push_back(std::move(connecting));
    }
}

}  // namespace tessarine::sample
