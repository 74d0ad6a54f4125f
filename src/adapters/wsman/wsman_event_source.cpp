#include "adapters/wsman/wsman_event_source.h"

#include "adapters/wsman/failure.h"
#include "adapters/wsman/host_address.h"
#include "adapters/wsman/sealed_channel.h"
#include "adapters/wsman/soap_request.h"
#include "adapters/wsman/wsman_event_result.h"

namespace tessarine {
namespace {

class WsmanEventService final : public EventService {
  public:
    WsmanEventService(const HostAddress& address, const std::string& name_space,
                      const std::optional<Credentials>& credentials, const WsmanOptions& options)
        : channel_(address, credentials, options.operation_timeout, options.while_waiting,
                   options.part_header_indent),
          requests_(channel_.url(), name_space, options.operation_timeout),
          temporary_folder_(options.temporary_folder) {
        channel_.open();
    }

    // Every message is sealed anyway, and a host never gets the user's right to act elsewhere.
    void set_authentication_level(int level) override {
        if (level < 0 || level > kAuthenticationPacketPrivacy) fail_level("authentication", level);
    }

    void set_impersonation_level(int level) override {
        if (level < 0 || level > kImpersonationImpersonate) fail_level("impersonation", level);
    }

    std::unique_ptr<EventResult> exec_query(const std::string& query) override {
        return std::make_unique<WsmanEventResult>(channel_, requests_, query, temporary_folder_);
    }

  private:
    [[noreturn]] static void fail_level(const std::string& kind, int level) {
        raise_failure("The " + kind + " level " + std::to_string(level) + " can't be kept");
    }

    SealedChannel channel_;
    SoapRequests requests_;
    std::string temporary_folder_;
};

}  // namespace

std::unique_ptr<EventService> WsmanEventSource::connect_server(
    const std::string& host, const std::string& name_space,
    const std::optional<Credentials>& credentials) {
    return std::make_unique<WsmanEventService>(make_host_address(host, options_.port), name_space,
                                               credentials, options_);
}

}  // namespace tessarine
