#include "adapters/browse/ws_discovery.h"

#include <cstdio>
#include <random>

#include "adapters/browse/browse_limits.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

// All of an id (RFC 4122, version 4) but its last eight digits.
std::string random_id_prefix() {
    std::random_device random;
    char text[40];  // its digits fit
    static_cast<void>(std::snprintf(text, sizeof text, "urn:uuid:%08x-%04x-4%03x-8%03x-%04x",
                                    random(), random() & 0xFFFFu, random() & 0xFFFu,
                                    random() & 0xFFFu, random() & 0xFFFFu));
    return text;
}

}  // namespace

WsDiscovery::WsDiscovery(const DiscoveryPlace& place)
    : socket_(place.address, place.port),
      id_prefix_(random_id_prefix()),
      probe_(probe_message(new_message_id())),
      begin_(std::chrono::steady_clock::now()),
      sent_(socket_.send(probe_)) {}

std::string WsDiscovery::new_message_id() {
    char number[9];  // its digits fit
    static_cast<void>(std::snprintf(number, sizeof number, "%08x", ++ids_));
    return id_prefix_ + number;
}

bool WsDiscovery::done() const {
    const auto passed = std::chrono::steady_clock::now() - begin_;
    return passed > browse_limits::kListening && requests_.idle();
}

void WsDiscovery::step() {
    const auto passed = std::chrono::steady_clock::now() - begin_;
    if (!sent_twice_ && passed > browse_limits::kSecondProbe) {
        sent_twice_ = true;
        sent_ = socket_.send(probe_) || sent_;
    }
    DiscoverySocket::Datagram datagram;
    for (int i = 0; i < browse_limits::kDatagramsInARow && socket_.receive(datagram); ++i)
        take(datagram);
    requests_.step();
}

// Who sends what can't be read, or answers a question that was not asked, has not answered.
void WsDiscovery::take(const DiscoverySocket::Datagram& datagram) {
    DiscoveryAnswer answer;
    try {
        answer = read_discovery_answer(datagram.bytes);
    } catch (const RuntimeError&) {
        return;
    }
    if (!answer.relates_to.starts_with(id_prefix_)) return;
    for (const DiscoveryMatch& match : answer.matches) take(match, datagram.sender);
}

void WsDiscovery::take(const DiscoveryMatch& match, const std::string& sender) {
    const Device device{sender, match.endpoint};
    if (!devices_.contains(device)) {
        if (devices_.size() >= browse_limits::kDevices) return;
        if (devices_of_address_[sender] >= browse_limits::kDevicesOfOneAddress) return;
        ++devices_of_address_[sender];
        devices_.insert(device);
        if (match.addresses.empty() && resolves_ < browse_limits::kResolves) {
            ++resolves_;
            socket_.send(resolve_message(new_message_id(), match.endpoint));
        }
    }
    const auto url = url_at(match.addresses, sender);
    if (url && asked_.insert(device).second)
        requests_.add(*url, get_message(new_message_id(), match.endpoint));
}

}  // namespace tessarine
