// What a client asks: a SOAP 1.2 message of WS-Management (DSP0226).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine::sample {

enum class SoapAction { Enumerate, Pull, Release };

struct SoapRequest {
    SoapAction action = SoapAction::Enumerate;
    std::string message_id;
    std::string resource_uri;
    std::string filter;
    std::string context;
    bool optimize = false;
    std::size_t max_envelope_size = 153'600;
    std::size_t max_elements = 1;
};

/// Nothing when `xml` is malformed, has a document type, or lacks what an action or a limit needs.
std::optional<SoapRequest> parse_soap_request(std::string_view xml);

}  // namespace tessarine::sample
