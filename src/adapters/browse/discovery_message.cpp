#include "adapters/browse/discovery_message.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "adapters/browse/browse_limits.h"
#include "core/runtime_error.h"
#include "xml/xml_reader.h"

namespace tessarine {
namespace {

struct NameSpace {
    std::string_view prefix;
    std::string_view uri;
};

// Some devices compare the type that is probed for letter by letter, with the usual prefix.
constexpr NameSpace kNameSpaces[] = {
    {"s", "http://www.w3.org/2003/05/soap-envelope"},
    {"a", "http://schemas.xmlsoap.org/ws/2004/08/addressing"},
    {"d", "http://schemas.xmlsoap.org/ws/2005/04/discovery"},
    {"m", "http://schemas.xmlsoap.org/ws/2004/09/mex"},
    {"wsdp", "http://schemas.xmlsoap.org/ws/2006/02/devprof"},
    {"pub", "http://schemas.microsoft.com/windows/pub/2005/07"},
};
constexpr std::string_view kComputer =
    "/s:Envelope/s:Body/m:Metadata/m:MetadataSection/wsdp:Relationship/wsdp:Host/pub:Computer";
constexpr std::string_view kGet = "http://schemas.xmlsoap.org/ws/2004/09/transfer/Get";
constexpr std::string_view kAnyone = "urn:schemas-xmlsoap-org:ws:2005:04:discovery";

// Tells each element that ends, by its way from the outside, with prefixes as above, and its text.
class ElementReader final : public XmlHandler {
  public:
    using Ended = std::function<void(std::string_view path, std::string_view text)>;
    explicit ElementReader(Ended ended) : ended_(std::move(ended)) {}

    void start_element(XmlName name, const XmlAttributes&) override {
        ends_.push_back(path_.size());
        const auto* known =
            std::find_if(std::begin(kNameSpaces), std::end(kNameSpaces),
                         [&](const NameSpace& each) { return each.uri == name.name_space; });
        path_ += '/';
        if (known != std::end(kNameSpaces)) path_.append(known->prefix).append(":");
        // A name that is longer means nothing here.
        path_ += known == std::end(kNameSpaces) ? "?" : name.local.substr(0, kLocalName);
        text_.clear();
    }

    void end_element() override {
        ended_(path_, text_);
        path_.resize(ends_.back());
        ends_.pop_back();
        text_.clear();
    }

    void text(std::string_view piece) override {
        if (text_.size() + piece.size() > browse_limits::kElementText)
            throw RuntimeError(ErrorNumber::Failed, "The host sent a text that is too long");
        text_ += piece;
    }

  private:
    static constexpr std::size_t kLocalName = 40;

    Ended ended_;
    std::string path_;
    std::vector<std::size_t> ends_;  // of the path outside of each open element
    std::string text_;
};

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kSpace = " \t\r\n";
    const std::size_t begin = std::min(text.find_first_not_of(kSpace), text.size());
    return text.substr(begin, text.find_last_not_of(kSpace) + 1 - begin);
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else
            result += c;
    }
    return result;
}

std::string envelope(std::string_view to, std::string_view action, const std::string& message_id,
                     const std::string& body) {
    std::string text = R"(<?xml version="1.0" encoding="utf-8"?><s:Envelope)";
    for (const auto& [prefix, uri] : kNameSpaces)
        text.append(" xmlns:").append(prefix).append("=\"").append(uri).append("\"");
    text.append("><s:Header><a:To>").append(escaped(to)).append("</a:To><a:Action>");
    text.append(action).append("</a:Action><a:MessageID>").append(message_id);
    text.append("</a:MessageID><a:ReplyTo><a:Address>").append(kNameSpaces[1].uri);
    text.append("/role/anonymous</a:Address></a:ReplyTo></s:Header><s:Body>").append(body);
    return text.append("</s:Body></s:Envelope>");
}

std::string discovery_message(std::string_view kind, const std::string& message_id,
                              const std::string& content) {
    const std::string name(kind);
    return envelope(kAnyone, std::string(kNameSpaces[2].uri) + "/" + name, message_id,
                    "<d:" + name + ">" + content + "</d:" + name + ">");
}

bool is_url_character(char c) {
    return c > ' ' && c < 0x7F;
}

// Whether what follows the address in a URL is a port, a path, or both.
bool is_rest_of_url(std::string_view rest) {
    constexpr std::size_t kPortDigits = 5;
    if (rest.starts_with(':')) {
        const std::size_t end = std::min(rest.find_first_not_of("0123456789", 1), rest.size());
        if (end == 1 || end > 1 + kPortDigits) return false;
        rest.remove_prefix(end);
    }
    return rest.empty() || rest.front() == '/';
}

}  // namespace

std::string probe_message(const std::string& message_id) {
    return discovery_message("Probe", message_id, "<d:Types>wsdp:Device</d:Types>");
}

std::string resolve_message(const std::string& message_id, const std::string& endpoint) {
    return discovery_message("Resolve", message_id,
                             "<a:EndpointReference><a:Address>" + escaped(endpoint) +
                                 "</a:Address></a:EndpointReference>");
}

std::string get_message(const std::string& message_id, const std::string& endpoint) {
    return envelope(endpoint, kGet, message_id, "");
}

DiscoveryAnswer read_discovery_answer(std::string_view datagram) {
    DiscoveryAnswer answer;
    DiscoveryMatch match;
    ElementReader reader([&](std::string_view path, std::string_view text) {
        if (path == "/s:Envelope/s:Header/a:RelatesTo") answer.relates_to = trimmed(text);
        for (const std::string kind : {"Probe", "Resolve"}) {
            const std::string at = "/s:Envelope/s:Body/d:" + kind + "Matches/d:" + kind + "Match";
            if (path == at + "/a:EndpointReference/a:Address") match.endpoint = trimmed(text);
            if (path == at + "/d:XAddrs") match.addresses = trimmed(text);
            if (path != at) continue;
            if (!match.endpoint.empty() && match.endpoint.size() <= browse_limits::kAddress &&
                answer.matches.size() < browse_limits::kDevicesOfOneAddress)
                answer.matches.push_back(match);
            match = {};
        }
    });
    read_xml(datagram, reader);
    return answer;
}

std::optional<BrowsedComputer> read_metadata(std::string_view document) {
    std::optional<BrowsedComputer> computer;
    ElementReader reader([&](std::string_view path, std::string_view text) {
        if (path == kComputer && !computer) computer = browsed_computer(trimmed(text));
    });
    read_xml(document, reader);
    return computer;
}

std::optional<std::string> url_at(std::string_view urls, const std::string& address) {
    const std::string wanted = "http://" + address;
    while (!(urls = trimmed(urls)).empty()) {
        const std::string_view url = urls.substr(0, urls.find_first_of(" \t\r\n"));
        urls.remove_prefix(url.size());
        if (url.size() <= browse_limits::kAddress && url.starts_with(wanted) &&
            is_rest_of_url(url.substr(wanted.size())) &&
            std::all_of(url.begin(), url.end(), is_url_character))
            return std::string(url);
    }
    return std::nullopt;
}

}  // namespace tessarine
