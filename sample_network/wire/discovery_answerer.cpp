#include "sample_network/wire/discovery_answerer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

#include <array>
#include <cstdio>
#include <string_view>

#include "sample_network/wire/http_exchange.h"
#include "sample_network/wire/tcp_socket.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::sample {
namespace {

constexpr const char* kGroupAddress = "239.255.255.250";
constexpr const char* kWorkgroup = "WORKGROUP";

constexpr std::string_view kEnvelope =
    R"(<?xml version="1.0" encoding="utf-8"?><soap:Envelope)"
    R"( xmlns:soap="http://www.w3.org/2003/05/soap-envelope")"
    R"( xmlns:wsa="http://schemas.xmlsoap.org/ws/2004/08/addressing")"
    R"( xmlns:wsd="http://schemas.xmlsoap.org/ws/2005/04/discovery")"
    R"( xmlns:wsx="http://schemas.xmlsoap.org/ws/2004/09/mex")"
    R"( xmlns:wsdp="http://schemas.xmlsoap.org/ws/2006/02/devprof")"
    R"( xmlns:pub="http://schemas.microsoft.com/windows/pub/2005/07"><soap:Header>)";

// The text of the first element of that local name; empty when there is none.
std::string text_of(std::string_view document, const std::string& element) {
    const std::size_t name = document.find(element + ">");
    if (name == std::string_view::npos) return "";
    const std::size_t begin = name + element.size() + 1;
    return std::string(document.substr(begin, document.find('<', begin) - begin));
}

std::string envelope(const std::string& relates_to, const std::string& body) {
    return std::string(kEnvelope) + "<wsa:RelatesTo>" + relates_to +
           "</wsa:RelatesTo></soap:Header><soap:Body>" + body + "</soap:Body></soap:Envelope>";
}

std::string match(const std::string& kind, const std::string& endpoint, const std::string& url) {
    const std::string place = url.empty() ? "" : "<wsd:XAddrs>" + url + "</wsd:XAddrs>";
    return "<wsd:" + kind + "Matches><wsd:" + kind + "Match><wsa:EndpointReference><wsa:Address>" +
           endpoint + "</wsa:Address></wsa:EndpointReference><wsd:Types>wsdp:Device</wsd:Types>" +
           place + "<wsd:MetadataVersion>1</wsd:MetadataVersion></wsd:" + kind +
           "Match></wsd:" + kind + "Matches>";
}

std::string metadata_of(const SampleHost& host) {
    const std::string group = host.workgroup ? std::string("/Workgroup:") + kWorkgroup
                                             : std::string("/Domain:") + kSampleDomain;
    return "<wsx:Metadata><wsx:MetadataSection><wsdp:Relationship><wsdp:Host><pub:Computer>" +
           host.name + group +
           "</pub:Computer></wsdp:Host></wsdp:Relationship></wsx:MetadataSection></wsx:Metadata>";
}

void serve_metadata(Connection& connection, const std::string& metadata) {
    HttpReader reader(connection);
    const HttpRequest request = reader.read();
    const std::string body = envelope(text_of(request.body, "MessageID"), metadata);
    connection.write(http_text({200, {}, "application/soap+xml", body, true}));
}

}  // namespace

DiscoveryAnswerer::DiscoveryAnswerer(const std::vector<SampleHost>& hosts, std::uint16_t port,
                                     std::uint16_t metadata_port)
    : socket_(bind_datagram_socket("0.0.0.0", port)),
      stop_(checked(eventfd(0, EFD_CLOEXEC), "eventfd")) {
    ip_mreq group{};
    inet_pton(AF_INET, kGroupAddress, &group.imr_multiaddr);
    group.imr_interface.s_addr = htonl(INADDR_LOOPBACK);
    checked(setsockopt(socket_.get(), IPPROTO_IP, IP_ADD_MEMBERSHIP, &group, sizeof group),
            "multicasts on the loopback interface");
    for (const SampleHost& host : hosts)
        if (host.state != HostState::Down) add(host, metadata_port);
    thread_ = std::thread([this] { answer_probes(); });
}

DiscoveryAnswerer::~DiscoveryAnswerer() {
    eventfd_write(stop_.get(), 1);
    thread_.join();
}

std::uint16_t DiscoveryAnswerer::port() const {
    return port_of(socket_);
}

void DiscoveryAnswerer::add(const SampleHost& host, std::uint16_t metadata_port) {
    Host& added = hosts_.emplace_back();
    std::array<char, 48> endpoint{};  // its digits fit
    static_cast<void>(std::snprintf(endpoint.data(), endpoint.size(),
                                    "urn:uuid:5a3b1e00-0000-4000-8000-%012zx", hosts_.size()));
    added.endpoint = endpoint.data();
    added.metadata = metadata_of(host);
    added.tells_its_place = hosts_.size() % 2 == 1;
    added.socket = bind_datagram_socket(host.address, 0);
    const auto serve = [&added](Connection& at) { serve_metadata(at, added.metadata); };
    const std::uint16_t opened = servers_.emplace_back(host.address, metadata_port, serve).port();
    added.url = "http://" + host.address + ":" + std::to_string(opened) + "/" +
                added.endpoint.substr(added.endpoint.rfind(':') + 1);
}

void DiscoveryAnswerer::answer_probes() {
    constexpr std::size_t kMostBytes = 32767;
    std::string buffer(kMostBytes, '\0');
    std::array<pollfd, 2> watched = {{{socket_.get(), POLLIN, 0}, {stop_.get(), POLLIN, 0}}};
    while (poll(watched.data(), watched.size(), -1) >= 0 && watched[1].revents == 0) {
        sockaddr_in asker{};
        socklen_t size = sizeof asker;
        const auto length = recvfrom(socket_.get(), buffer.data(), buffer.size(), 0,
                                     reinterpret_cast<sockaddr*>(&asker), &size);
        if (length > 0) answer(buffer.substr(0, static_cast<std::size_t>(length)), asker);
    }
}

void DiscoveryAnswerer::answer(const std::string& question, const sockaddr_in& asker) {
    const bool probe = question.find("Probe>") != std::string::npos;
    const std::string id = text_of(question, "MessageID");
    for (const Host& host : hosts_) {
        const bool asked = probe || question.find(host.endpoint) != std::string::npos;
        if (!asked) continue;
        const bool placed = !probe || host.tells_its_place;
        const std::string text =
            envelope(id, match(probe ? "Probe" : "Resolve", host.endpoint, placed ? host.url : ""));
        sendto(host.socket.get(), text.data(), text.size(), 0,
               reinterpret_cast<const sockaddr*>(&asker), sizeof asker);
    }
}

}  // namespace tessarine::sample
