#include "sample_network/sample_network.h"

#include <array>

#include "sample_network/wire/tcp_socket.h"
#include "sample_network/wsman_connection.h"

namespace tessarine::sample {
namespace {

constexpr std::uint16_t kPortMapper = 135;
constexpr std::uint16_t kManagement = 5985;
constexpr std::uint16_t kTlsManagement = 5986;

// Takes the connection, says nothing, and closes it after a while.
void hold(Connection& connection) {
    std::array<char, 256> ignored;
    while (true) connection.read_some(ignored, std::chrono::seconds(10));
}

}  // namespace

void SampleNetwork::listen(DownHosts down_hosts) {
    for (const SampleHost& host : hosts_) {
        if (host.state != HostState::Down) {
            servers_.emplace_back(host.address, kPortMapper, hold);
            open_management(host, host.state == HostState::TlsOnly ? kTlsManagement : kManagement);
        } else if (down_hosts == DownHosts::Silent) {
            silent_ports_.emplace_back(host.address, kPortMapper);
            silent_ports_.emplace_back(host.address, kManagement);
        }
    }
}

std::vector<std::string> SampleNetwork::listen_loopback(std::uint16_t port) {
    std::vector<std::string> places;
    for (const SampleHost& host : hosts_) {
        const std::uint16_t opened = host.state == HostState::Down
                                         ? silent_ports_.emplace_back(host.address, port).port()
                                         : open_management(host, port);
        places.push_back(host.name + "=" + host.address + ":" + std::to_string(opened));
    }
    return places;
}

std::uint16_t SampleNetwork::open_management(const SampleHost& host, std::uint16_t port) {
    if (host.state == HostState::PortMapperOnly)
        return port_of(closed_ports_.emplace_back(bind_socket(host.address, port)));
    if (host.state == HostState::TlsOnly) return open_with_tls(host, port);
    return servers_
        .emplace_back(host.address, port,
                      [&host](Connection& connection) { serve_wsman(connection, host); })
        .port();
}

std::uint16_t SampleNetwork::open_with_tls(const SampleHost& host, std::uint16_t port) {
    const TlsServer& server =
        tls_servers_.emplace_back(authority_.identity({host.name, host.address}));
    const auto serve = [&](Connection& connection) {
        TlsConnection tls(connection, server);
        serve_wsman(tls, host, server.channel_binding());
    };
    return servers_.emplace_back(host.address, port, serve).port();
}

}  // namespace tessarine::sample
