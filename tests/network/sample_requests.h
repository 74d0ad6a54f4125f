// Messages to a sample host, and what its answers hold.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine::sample {

inline constexpr const char* kAllEvents = "SELECT * FROM Win32_NTLogEvent";

inline std::string soap_message(const std::string& action, const std::string& body,
                                int max_envelope_size = 512'000) {
    return "<s:Envelope xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\""
           " xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\""
           " xmlns:n=\"http://schemas.xmlsoap.org/ws/2004/09/enumeration\""
           " xmlns:w=\"http://schemas.dmtf.org/wbem/wsman/1/wsman.xsd\"><s:Header>"
           "<w:ResourceURI>http://schemas.microsoft.com/wbem/wsman/1/wmi/root/cimv2/*"
           "</w:ResourceURI><a:Action>http://schemas.xmlsoap.org/ws/2004/09/enumeration/" +
           action + "</a:Action><w:MaxEnvelopeSize>" + std::to_string(max_envelope_size) +
           "</w:MaxEnvelopeSize><a:MessageID>uuid:1</a:MessageID></s:Header><s:Body>" + body +
           "</s:Body></s:Envelope>";
}

/// `query` with its "<" escaped.
inline std::string enumerate_message(const std::string& query, int max_envelope_size = 512'000) {
    return soap_message("Enumerate",
                        "<n:Enumerate><w:OptimizeEnumeration/><w:MaxElements>1000</w:MaxElements>"
                        "<w:Filter Dialect=\"http://schemas.microsoft.com/wbem/wsman/1/WQL\">" +
                            query + "</w:Filter></n:Enumerate>",
                        max_envelope_size);
}

inline std::string pull_message(const std::string& context, int max_elements = 1000,
                                int max_envelope_size = 512'000) {
    return soap_message("Pull",
                        "<n:Pull><n:EnumerationContext>" + context +
                            "</n:EnumerationContext><n:MaxElements>" +
                            std::to_string(max_elements) + "</n:MaxElements></n:Pull>",
                        max_envelope_size);
}

/// The texts between `begin` and `end`, in order.
inline std::vector<std::string> texts_between(std::string_view text, std::string_view begin,
                                              std::string_view end) {
    std::vector<std::string> found;
    for (std::size_t at = 0; (at = text.find(begin, at)) != std::string_view::npos;) {
        at += begin.size();
        found.emplace_back(text.substr(at, text.find(end, at) - at));
    }
    return found;
}

/// Empty when the answer ends the enumeration.
inline std::string context_in(std::string_view answer) {
    const auto found = texts_between(answer, "<n:EnumerationContext>", "</");
    return found.empty() ? "" : found.front();
}

inline std::vector<std::string> values_in(std::string_view answer, const std::string& property) {
    return texts_between(answer, "<p:" + property + ">", "</p:");
}

}  // namespace tessarine::sample
