#include "contract/event_source_peers.h"

#include "core/code_page.h"
#include "sample_network/wire/soap_fault.h"

namespace tessarine::contract {
namespace {

// Nothing listens there.
constexpr int kClosedPort = 1;

std::string utf8_of(const fakes::HostEvent::Text& text) {
    return to_utf8(text.value());
}

sample::SampleEvent sample_event(const fakes::HostEvent& event) {
    const sample::Instant time = sample::parse_dmtf(event.TimeGenerated.value())->instant;
    sample::SampleEvent sample;
    sample.log_file = utf8_of(event.LogFile);
    sample.type = utf8_of(event.Type);
    sample.source_name = utf8_of(event.SourceName);
    sample.event_code = static_cast<std::uint32_t>(std::stoul(event.EventCode.value()));
    sample.computer_name = utf8_of(event.ComputerName);
    if (event.Message) sample.message = utf8_of(event.Message);
    if (event.User) sample.user = utf8_of(event.User);
    sample.time_generated = sample.time_written = time;
    return sample;
}

[[noreturn]] void deny() {
    throw sample::SoapFault{sample::FaultKind::AccessDenied};
}

sample::EventHistory history_of(const fakes::ScriptedHost& host) {
    return [host]() -> sample::EventWalk {
        if (!host.query_error.empty()) deny();
        return [host, position = 0,
                event = sample::SampleEvent()]() mutable -> const sample::SampleEvent* {
            if (static_cast<std::size_t>(position) == host.records.size()) return nullptr;
            event = sample_event(host.records[static_cast<std::size_t>(position)]);
            if (++position == host.failing_record) deny();
            return &event;
        };
    };
}

WsmanOptions options_for(int port) {
    WsmanOptions options;
    options.port = port;
    options.tls_port = kClosedPort;
    return options;
}

}  // namespace

std::unique_ptr<EventService> FakePeer::connect(const fakes::ScriptedHost& host,
                                                const std::string& user) {
    source_.hosts["PC1"] = host;
    return source_.connect_server("PC1", "root\\cimv2", Credentials{user, sample::kSamplePassword});
}

std::unique_ptr<EventService> FakePeer::connect_with_a_wrong_password() {
    fakes::ScriptedHost host;
    host.connect_error = "The host refused the user name or the password";
    source_.hosts["PC1"] = host;
    return source_.connect_server("PC1", "root\\cimv2", Credentials{kUser, kWrongPassword});
}

std::unique_ptr<EventService> FakePeer::connect_to_nobody() {
    return source_.connect_server("NOBODY", "root\\cimv2", std::nullopt);
}

std::unique_ptr<EventService> WirePeer::connect(const fakes::ScriptedHost& host,
                                                const std::string& user) {
    return connect(host, Credentials{user, sample::kSamplePassword});
}

std::unique_ptr<EventService> WirePeer::connect_with_a_wrong_password() {
    return connect({}, Credentials{kUser, kWrongPassword});
}

std::unique_ptr<EventService> WirePeer::connect_to_nobody() {
    return WsmanEventSource(options_for(kClosedPort))
        .connect_server("127.0.0.1", "root\\cimv2", Credentials{kUser, sample::kSamplePassword});
}

std::unique_ptr<EventService> WirePeer::connect(const fakes::ScriptedHost& host,
                                                const Credentials& credentials) {
    sample::SampleHost sample;
    sample.name = "PC1";
    sample.address = "127.0.0.1";
    sample.history = history_of(host);
    const std::string place = networks_.emplace_back(std::vector{std::move(sample)}, authority_)
                                  .listen_loopback(0)
                                  .front();
    return WsmanEventSource(options_for(std::stoi(place.substr(place.rfind(':') + 1))))
        .connect_server("127.0.0.1", "root\\cimv2", credentials);
}

}  // namespace tessarine::contract
