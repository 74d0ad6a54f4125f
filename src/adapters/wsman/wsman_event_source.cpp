#include "adapters/wsman/wsman_event_source.h"

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/host_address.h"
#include "adapters/wsman/records/time_zone_query.h"
#include "adapters/wsman/sealed_channel.h"
#include "adapters/wsman/soap/soap_request.h"
#include "adapters/wsman/wsman_event_result.h"

namespace tessarine {
namespace {

class WsmanEventService final : public EventService {
  public:
    WsmanEventService(std::unique_ptr<SealedChannel> channel, const std::string& name_space,
                      const WsmanOptions& options)
        : channel_(std::move(channel)),
          requests_(channel_->url(), name_space, options.operation_timeout),
          temporary_folder_(options.temporary_folder),
          query_limits_(options.query_limits) {}

    // Every message is sealed anyway, and a host never gets the user's right to act elsewhere.
    void set_authentication_level(int level) override {
        if (level < 0 || level > kAuthenticationPacketPrivacy) fail_level("authentication", level);
    }

    void set_impersonation_level(int level) override {
        if (level < 0 || level > kImpersonationImpersonate) fail_level("impersonation", level);
    }

    std::unique_ptr<EventResult> exec_query(const std::string& query) override {
        if (!clock_) clock_ = ask_host_clock(*channel_, requests_);
        return std::make_unique<WsmanEventResult>(*channel_, requests_, *clock_, query,
                                                  temporary_folder_, query_limits_);
    }

  private:
    [[noreturn]] static void fail_level(const std::string& kind, int level) {
        raise_failure("The " + kind + " level " + std::to_string(level) + " can't be kept");
    }

    std::unique_ptr<SealedChannel> channel_;
    SoapRequests requests_;
    std::optional<HostClock> clock_;  // from the first query on
    std::string temporary_folder_;
    QueryLimits query_limits_;
};

std::unique_ptr<SealedChannel> open_channel(const HostAddress& address,
                                            const std::optional<Credentials>& credentials,
                                            const WsmanOptions& options) {
    auto channel = std::make_unique<SealedChannel>(address, credentials, options.operation_timeout,
                                                   options.while_waiting,
                                                   options.part_header_indent, options.authorities);
    channel->open();
    return channel;
}

// TLS only where nothing else listens: the seal protects as well, and needs no certificates.
std::unique_ptr<SealedChannel> open_one_of_the_ports(const std::string& host,
                                                     const std::optional<Credentials>& credentials,
                                                     const WsmanOptions& options) {
    try {
        return open_channel(make_host_address(host, options.port), credentials, options);
    } catch (const PortClosed&) {
        try {
            return open_channel(make_host_address(host, options.tls_port, Protection::Tls),
                                credentials, options);
        } catch (const PortClosed&) {
            raise_failure("Ports " + std::to_string(options.port) + " and " +
                          std::to_string(options.tls_port) +
                          " of the host are closed (connection refused)");
        }
    }
}

}  // namespace

std::unique_ptr<EventService> WsmanEventSource::connect_server(
    const std::string& host, const std::string& name_space,
    const std::optional<Credentials>& credentials) {
    return std::make_unique<WsmanEventService>(open_one_of_the_ports(host, credentials, options_),
                                               name_space, options_);
}

}  // namespace tessarine
