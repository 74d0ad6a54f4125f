#include "sample_network/wire/tcp_socket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace tessarine::sample {
namespace {

sockaddr_in socket_address(const std::string& address, std::uint16_t port) {
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    if (inet_pton(AF_INET, address.c_str(), &result.sin_addr) != 1)
        throw std::system_error(EINVAL, std::generic_category(), address);
    return result;
}

template <typename Call>
int with_address(sockaddr_in& address, const Call& call) {
    return call(reinterpret_cast<sockaddr*>(&address), socklen_t{sizeof address});
}

FileDescriptor bind_of_type(int type, const std::string& address, std::uint16_t port) {
    FileDescriptor bound(checked(socket(AF_INET, type | SOCK_CLOEXEC, 0), "socket"));
    const int on = 1;
    checked(setsockopt(bound.get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on), "SO_REUSEADDR");
    sockaddr_in at = socket_address(address, port);
    checked(with_address(
                at, [&](auto* place, auto length) { return bind(bound.get(), place, length); }),
            address + ":" + std::to_string(port));
    return bound;
}

}  // namespace

FileDescriptor bind_socket(const std::string& address, std::uint16_t port) {
    return bind_of_type(SOCK_STREAM, address, port);
}

FileDescriptor bind_datagram_socket(const std::string& address, std::uint16_t port) {
    return bind_of_type(SOCK_DGRAM, address, port);
}

std::uint16_t port_of(const FileDescriptor& bound) {
    sockaddr_in at{};
    checked(with_address(at, [&](auto* place,
                                 auto length) { return getsockname(bound.get(), place, &length); }),
            "getsockname");
    return ntohs(at.sin_port);
}

FileDescriptor begin_connect(const std::string& address, std::uint16_t port) {
    FileDescriptor connecting(
        checked(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0), "socket"));
    sockaddr_in to = socket_address(address, port);
    const int result = with_address(
        to, [&](auto* place, auto length) { return connect(connecting.get(), place, length); });
    if (result < 0 && errno != EINPROGRESS) return {};
    return connecting;
}

}  // namespace tessarine::sample
