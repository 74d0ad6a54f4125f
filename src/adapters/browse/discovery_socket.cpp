#include "adapters/browse/discovery_socket.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <memory>
#include <set>

#include "adapters/browse/browse_limits.h"

namespace tessarine {
namespace {

constexpr int kReceiveBuffer = 1024 * 1024;

// One address of each interface that is up.
std::vector<in_addr> interface_addresses() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) return {};
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> list(first, freeifaddrs);
    std::set<std::string> seen;
    std::vector<in_addr> addresses;
    for (const ifaddrs* each = first; each != nullptr; each = each->ifa_next) {
        const bool usable = each->ifa_addr != nullptr && each->ifa_addr->sa_family == AF_INET &&
                            (each->ifa_flags & IFF_UP) != 0;
        if (usable && seen.insert(each->ifa_name).second)
            addresses.push_back(reinterpret_cast<const sockaddr_in*>(each->ifa_addr)->sin_addr);
    }
    return addresses;
}

bool is_loopback(in_addr address) {
    return (ntohl(address.s_addr) >> 24) == IN_LOOPBACKNET;
}

}  // namespace

DiscoverySocket::DiscoverySocket(const std::string& address, int port)
    : descriptor_(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)),
      buffer_(browse_limits::kDatagram + 1, '\0') {
    target_.sin_family = AF_INET;
    target_.sin_port = htons(static_cast<std::uint16_t>(port));
    inet_pton(AF_INET, address.c_str(), &target_.sin_addr);
    // Many may answer at the same moment.
    setsockopt(descriptor_, SOL_SOCKET, SO_RCVBUF, &kReceiveBuffer, sizeof kReceiveBuffer);
}

DiscoverySocket::~DiscoverySocket() {
    if (descriptor_ >= 0) close(descriptor_);
}

bool DiscoverySocket::send(std::string_view message) {
    bool sent = false;
    for (const in_addr from : interface_addresses()) {
        setsockopt(descriptor_, IPPROTO_IP, IP_MULTICAST_IF, &from, sizeof from);
        const auto length = sendto(descriptor_, message.data(), message.size(), 0,
                                   reinterpret_cast<const sockaddr*>(&target_), sizeof target_);
        const bool elsewhere = !is_loopback(from) || is_loopback(target_.sin_addr);
        if (length >= 0 && elsewhere) sent = true;
    }
    return sent;
}

bool DiscoverySocket::receive(Datagram& datagram) {
    sockaddr_in sender{};
    socklen_t size = sizeof sender;
    const auto length = recvfrom(descriptor_, buffer_.data(), buffer_.size(), 0,
                                 reinterpret_cast<sockaddr*>(&sender), &size);
    if (length < 0) return false;
    const auto bytes = static_cast<std::size_t>(length);
    datagram.bytes = {buffer_.data(), bytes > browse_limits::kDatagram ? 0 : bytes};
    char text[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &sender.sin_addr, text, sizeof text);
    datagram.sender = text;
    return true;
}

}  // namespace tessarine
