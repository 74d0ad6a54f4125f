// What computers tell of themselves by WS-Discovery (April 2005) and DPWS (2006).
#pragma once

#include <cstdint>
#include <list>
#include <string>
#include <thread>
#include <vector>

#include "sample_network/hosts/sample_host.h"
#include "sample_network/wire/connection_server.h"
#include "sample_network/wire/file_descriptor.h"

struct sockaddr_in;

namespace tessarine::sample {

/// Has every host that is not down answer probes on the loopback interface, each from its own
/// address. Every second host tells where it is only when it is asked for it, as some do.
class DiscoveryAnswerer {
  public:
    /// `port` is where probes come in, `metadata_port` that of each host for its metadata; 0 takes
    /// a free one. Raises a std::system_error.
    explicit DiscoveryAnswerer(const std::vector<SampleHost>& hosts, std::uint16_t port = 3702,
                               std::uint16_t metadata_port = 5357);
    ~DiscoveryAnswerer();
    DiscoveryAnswerer(const DiscoveryAnswerer&) = delete;
    DiscoveryAnswerer& operator=(const DiscoveryAnswerer&) = delete;

    std::uint16_t port() const;

  private:
    struct Host {
        std::string endpoint;
        std::string url;
        std::string metadata;
        FileDescriptor socket;
        bool tells_its_place = true;
    };

    void add(const SampleHost& host, std::uint16_t metadata_port);
    void answer_probes();
    void answer(const std::string& question, const sockaddr_in& asker);

    std::list<Host> hosts_;
    std::list<ConnectionServer> servers_;
    FileDescriptor socket_;
    FileDescriptor stop_;
    std::thread thread_;
};

}  // namespace tessarine::sample
