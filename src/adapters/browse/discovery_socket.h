// The UDP socket of WS-Discovery.
#pragma once

#include <netinet/in.h>

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class DiscoverySocket {
  public:
    /// Sends to `address` (IPv4) and `port`, from every interface that is up.
    DiscoverySocket(const std::string& address, int port);
    ~DiscoverySocket();
    DiscoverySocket(const DiscoverySocket&) = delete;
    DiscoverySocket& operator=(const DiscoverySocket&) = delete;

    int descriptor() const { return descriptor_; }

    /// Whether the message has left by an interface other than the loopback, or to it alone because
    /// that is where the address is.
    bool send(std::string_view message);

    struct Datagram {
        std::string_view bytes;  ///< holds until the next call
        std::string sender;      ///< address, as digits and dots
    };
    /// Takes the next datagram; false when there is none. One that is too long has no bytes.
    bool receive(Datagram& datagram);

  private:
    int descriptor_;
    sockaddr_in target_{};
    std::string buffer_;
};

}  // namespace tessarine
