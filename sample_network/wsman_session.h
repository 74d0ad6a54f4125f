// The management service of one host, as one client sees it: questions in, answers out.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "sample_network/faults/fault_injector.h"
#include "sample_network/hosts/sample_host.h"
#include "sample_network/wire/enumeration.h"
#include "sample_network/wire/soap_request.h"

namespace tessarine::sample {

/// The text of a message in UTF-8, and the status of the HTTP answer that carries it.
struct SoapAnswer {
    int status = 200;
    std::string text;
};

class WsmanSession {
  public:
    /// `host` outlives the session.
    explicit WsmanSession(const SampleHost& host) : host_(host), faults_(host) {}

    /// Answers one message of DSP0226; whatever is wrong with it is answered by a fault.
    SoapAnswer answer(std::string_view request_text);

    /// What else the host's fault does to the connection.
    FaultInjector& faults() { return faults_; }

  private:
    struct OpenEnumeration {
        Enumeration enumeration;
        std::size_t max_envelope_size;
    };
    using Enumerations = std::map<std::string, OpenEnumeration, std::less<>>;

    SoapAnswer answer(const SoapRequest& request);
    std::string answer_text(const SoapRequest& request);
    void fail_as_planned();
    std::string enumerate(const SoapRequest& request);
    std::string pull(const SoapRequest& request);
    std::string release(const SoapRequest& request);
    std::string keep(OpenEnumeration&& open);
    Enumerations::iterator find(const SoapRequest& request);

    const SampleHost& host_;
    FaultInjector faults_;
    Enumerations enumerations_;
};

}  // namespace tessarine::sample
