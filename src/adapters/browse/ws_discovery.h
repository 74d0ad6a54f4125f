// One search for computers by WS-Discovery over IPv4 (April 2005, ad hoc mode).
#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "adapters/browse/discovery_message.h"
#include "adapters/browse/discovery_socket.h"
#include "adapters/browse/metadata_requests.h"

namespace tessarine {

/// Where the probe goes.
struct DiscoveryPlace {
    std::string address = "239.255.255.250";
    int port = 3702;
};

/// The search begins with the object, and goes on with each step.
class WsDiscovery {
  public:
    explicit WsDiscovery(const DiscoveryPlace& place);

    int socket() const { return socket_.descriptor(); }
    CURLM* requests() const { return requests_.handle(); }

    void step();
    bool done() const;

    /// Whether there is a network that the probe went out to.
    bool sent() const { return sent_; }
    /// How many devices have answered it.
    std::size_t devices() const { return devices_.size(); }
    const std::vector<BrowsedComputer>& computers() const { return requests_.computers(); }

  private:
    using Moment = std::chrono::steady_clock::time_point;

    std::string new_message_id();
    void take(const DiscoverySocket::Datagram& datagram);
    void take(const DiscoveryMatch& match, const std::string& sender);

    DiscoverySocket socket_;
    MetadataRequests requests_;
    const std::string id_prefix_;
    unsigned ids_ = 0;
    const std::string probe_;
    const Moment begin_;
    bool sent_;
    bool sent_twice_ = false;
    std::size_t resolves_ = 0;
    using Device = std::pair<std::string, std::string>;  // address, endpoint
    std::set<Device> devices_;
    std::set<Device> asked_;
    std::map<std::string, std::size_t> devices_of_address_;
};

}  // namespace tessarine
