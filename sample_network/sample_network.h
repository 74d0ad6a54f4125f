// All hosts of the sample network at their ports.
#pragma once

#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "sample_network/hosts/sample_host.h"
#include "sample_network/wire/certificate_authority.h"
#include "sample_network/wire/connection_server.h"
#include "sample_network/wire/silent_port.h"
#include "sample_network/wire/tls_connection.h"

namespace tessarine::sample {

/// How a host that is down is played: by ports that swallow everything, or by nothing at all where
/// the system lets no port do that.
enum class DownHosts { Silent, Absent };

class SampleNetwork {
  public:
    /// No port is open yet. `authority` signs the certificates of the hosts with TLS and outlives
    /// the network.
    SampleNetwork(std::vector<SampleHost> hosts, const CertificateAuthority& authority)
        : hosts_(std::move(hosts)), authority_(authority) {}

    /// Opens 135 and 5985, or with TLS 5986, at each host's own address. Raises a
    /// std::system_error.
    void listen(DownHosts down_hosts);

    /// Opens only the management service of each host, at `port` of its own address, with 0 at any
    /// free one, and returns a line NAME=ADDRESS:PORT for each. Raises a std::system_error.
    std::vector<std::string> listen_loopback(std::uint16_t port);

  private:
    std::uint16_t open_management(const SampleHost& host, std::uint16_t port);
    std::uint16_t open_with_tls(const SampleHost& host, std::uint16_t port);

    std::vector<SampleHost> hosts_;
    const CertificateAuthority& authority_;
    std::list<TlsServer> tls_servers_;
    std::list<ConnectionServer> servers_;
    std::list<SilentPort> silent_ports_;
    std::list<FileDescriptor> closed_ports_;
};

}  // namespace tessarine::sample
