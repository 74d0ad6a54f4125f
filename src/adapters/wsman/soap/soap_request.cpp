#include "adapters/wsman/soap/soap_request.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string_view>
#include <utility>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/soap/xml_names.h"
#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr std::string_view kWmiResources = "http://schemas.microsoft.com/wbem/wsman/1/wmi/";
constexpr std::string_view kWqlDialect = "http://schemas.microsoft.com/wbem/wsman/1/WQL";
constexpr std::string_view kAnonymous =
    "http://schemas.xmlsoap.org/ws/2004/08/addressing/role/anonymous";

std::string escaped(std::string_view text) {
    std::string xml;
    for (const char c : text) {
        if (c == '&')
            xml += "&amp;";
        else if (c == '<')
            xml += "&lt;";
        else if (c == '>')
            xml += "&gt;";
        else if (c == '\r')
            xml += "&#13;";  // A raw one would be read as a line feed.
        else
            xml += c;
    }
    return xml;
}

std::string element(const std::string& name, std::string_view content) {
    std::string text = "<" + name + ">";
    text.append(content);
    return text + "</" + name.substr(0, name.find(' ')) + ">";
}

// A random UUID (RFC 4122, version 4), in the upper case that Windows writes.
std::string new_message_id() {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string id = "uuid:xxxxxxxx-xxxx-4xxx-8xxx-xxxxxxxxxxxx";
    std::random_device random;
    for (char& c : id)
        if (c == 'x') c = kDigits[random() % kDigits.size()];
    return id;
}

// A query needs the wildcard, not the class.
std::string resource_of(const std::string& name_space) {
    const auto allowed = [](char c) {
        return is_ascii_letter(c) || is_ascii_digit(c) || c == '_' || c == '\\' || c == '/';
    };
    if (name_space.empty() || !std::all_of(name_space.begin(), name_space.end(), allowed))
        raise_failure("This is no namespace: \"" + name_space + "\"");
    std::string path = name_space;
    std::replace(path.begin(), path.end(), '\\', '/');
    return std::string(kWmiResources) + path + "/*";
}

std::string max_elements(const std::string& prefix) {
    return element(prefix + ":MaxElements", std::to_string(limits::kElementsPerPull));
}

std::string name_spaces() {
    std::string text;
    for (const auto& [prefix, uri] :
         {std::pair{"s", xml::kSoap}, std::pair{"a", xml::kAddressing},
          std::pair{"n", xml::kEnumeration}, std::pair{"w", xml::kWsman}})
        text.append(" xmlns:").append(prefix).append("=\"").append(uri).append("\"");
    return text;
}

}  // namespace

SoapRequests::SoapRequests(std::string url, const std::string& name_space,
                           std::chrono::seconds operation_timeout)
    : url_(std::move(url)),
      resource_(resource_of(name_space)),
      operation_timeout_(operation_timeout) {}

SoapRequest SoapRequests::enumerate(const std::string& wql) const {
    const std::string filter = "w:Filter Dialect=\"" + std::string(kWqlDialect) + "\"";
    return request("Enumerate",
                   element("n:Enumerate", "<w:OptimizeEnumeration/>" + max_elements("w") +
                                              element(filter, escaped(to_utf8(wql)))));
}

SoapRequest SoapRequests::pull(const std::string& context) const {
    return request("Pull", element("n:Pull", element("n:EnumerationContext", escaped(context)) +
                                                 max_elements("n")));
}

SoapRequest SoapRequests::release(const std::string& context) const {
    return request("Release",
                   element("n:Release", element("n:EnumerationContext", escaped(context))));
}

// No language is asked for: types and messages stay in the host's own.
SoapRequest SoapRequests::request(const std::string& action, const std::string& body) const {
    const std::string demand = " s:mustUnderstand=\"true\"";
    const std::string id = new_message_id();
    const std::string header =
        element("a:To", url_) + element("w:ResourceURI" + demand, resource_) +
        element("a:ReplyTo", element("a:Address" + demand, kAnonymous)) +
        element("a:Action" + demand, std::string(xml::kEnumeration) + "/" + action) +
        element("w:MaxEnvelopeSize" + demand, std::to_string(limits::kEnvelopeSize)) +
        element("a:MessageID", id) +
        element("w:OperationTimeout", "PT" + std::to_string(operation_timeout_.count()) + ".000S");
    return {id, element("s:Envelope" + name_spaces(),
                        element("s:Header", header) + element("s:Body", body))};
}

}  // namespace tessarine
