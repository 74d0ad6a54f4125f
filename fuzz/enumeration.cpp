// A whole enumeration: a host whose answers' bodies are the parts of the input, with a line "--"
// between them. A body "lost" is a connection that breaks.
#include "adapters/wsman/soap/enumeration.h"

#include <string>
#include <vector>

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/records/event_items.h"
#include "adapters/wsman/soap/text_scrub.h"
#include "adapters/wsman/soap/xml_names.h"
#include "fuzz/promises.h"
#include "xml/xml_reader.h"

namespace tessarine::fuzz {
namespace {

// What the host reads in a request.
class RequestReader final : public XmlHandler {
  public:
    explicit RequestReader(std::string_view request) { read_xml(request, *this); }

    std::string action, message_id, context;

  private:
    void start_element(XmlName name, const XmlAttributes&) override { open_ = name.local; }
    void end_element() override { open_.clear(); }
    void text(std::string_view piece) override {
        if (open_ == "Action") action += piece;
        if (open_ == "MessageID") message_id += piece;
        if (open_ == "EnumerationContext") context += piece;
    }

    std::string open_;
};

class ScriptedHost final : public SoapChannel {
  public:
    explicit ScriptedHost(std::string_view bodies) : bodies_(bodies) {}

    std::string exchange(std::string_view soap) override {
        hold(usable_, "nothing is sent on a broken connection");
        hold(!released_, "nothing is asked after a Release");
        const RequestReader request = read(soap);
        const std::string body = next_body();
        usable_ = body != "lost";
        if (!usable_) raise_failure("lost");
        return answer(request.message_id, body);
    }

    void send_parting(std::string_view soap) override {
        hold(usable_ && !released_, "one Release is sent, on a whole connection");
        released_ = true;
        read(soap);
    }

    bool is_usable() const override { return usable_; }

    bool released() const { return released_; }
    std::size_t exchanges() const { return exchanges_; }

  private:
    RequestReader read(std::string_view soap) {
        RequestReader request(soap);
        const bool first = exchanges_++ == 0;
        hold(request.action.ends_with(first       ? "Enumerate"
                                      : released_ ? "Release"
                                                  : "Pull"),
             "a request is what it is taken for");
        hold(request.context == context_, "a context goes back as it came");
        return request;
    }

    std::string next_body() {
        constexpr std::string_view kBetween = "\n--\n";
        if (bodies_.empty()) return "lost";
        const std::size_t end = std::min(bodies_.find(kBetween), bodies_.size());
        const std::string body(bodies_.substr(0, end));
        bodies_.remove_prefix(std::min(end + kBetween.size(), bodies_.size()));
        return body;
    }

    std::string answer(const std::string& message_id, const std::string& body) {
        std::string text = "<s:Envelope";
        for (const auto& [prefix, name_space] :
             {std::pair{"s", xml::kSoap}, std::pair{"a", xml::kAddressing},
              std::pair{"n", xml::kEnumeration}, std::pair{"w", xml::kWsman},
              std::pair{"f", xml::kWsmanFault}, std::pair{"x", xml::kInstance}})
            text.append(" xmlns:").append(prefix).append("=\"").append(name_space).append("\"");
        text += "><s:Header><a:RelatesTo>" + message_id + "</a:RelatesTo></s:Header><s:Body>" +
                body + "</s:Body></s:Envelope>";
        remember_context_of(text, message_id);
        return text;
    }

    // What an answer says is another target's matter.
    void remember_context_of(const std::string& text, const std::string& message_id) {
        std::string cleaned, records;
        ItemReader items = event_items(records, HostClock());
        scrub(text, cleaned);
        succeeds([&] {
            const SoapAnswer answer = read_soap_answer(cleaned, items);
            if (!answer.fault && answer.relates_to == message_id) context_ = answer.context;
        });
    }

    std::string_view bodies_;
    std::string context_;
    std::size_t exchanges_ = 0;
    bool usable_ = true;
    bool released_ = false;
};

// Whether the enumeration came to its end.
bool pull_all(Enumeration& enumeration, ItemReader& items) {
    return succeeds([&] {
        enumeration.start("SELECT * FROM Win32_NTLogEvent", items);
        while (!enumeration.is_finished()) enumeration.pull(items);
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ScriptedHost host(text_of(data, size));
    std::string records;
    ItemReader items = event_items(records, HostClock());
    bool finished = false;
    {
        Enumeration enumeration(
            host, SoapRequests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(50)));
        finished = pull_all(enumeration, items);
        const std::size_t exchanges = host.exchanges();
        hold(finished || !succeeds([&] { enumeration.pull(items); }),
             "there is no way on after a failure");
        hold(host.exchanges() == exchanges, "nobody is asked after the end");
    }
    hold(!finished || !host.released(), "what has ended is not given back");
    hold_for_records(records);
    return 0;
}

}  // namespace tessarine::fuzz
