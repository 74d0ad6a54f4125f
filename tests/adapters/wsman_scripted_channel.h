// A host whose answers a test makes up, for the event source's SOAP side.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adapters/wsman/soap/soap_channel.h"
#include "core/runtime_error.h"
#include "xml/xml_reader.h"

namespace tessarine {

/// The text of each element of a request by its local name.
class RequestTexts final : public XmlHandler {
  public:
    explicit RequestTexts(std::string_view request) { read_xml(request, *this); }
    std::string text_of(const std::string& name) const {
        for (const auto& [found, text] : texts_)
            if (found == name) return text;
        return "no " + name;
    }

  private:
    void start_element(XmlName name, const XmlAttributes&) override {
        texts_.emplace_back(name.local, "");
    }
    void end_element() override {}
    void text(std::string_view piece) override { texts_.back().second += piece; }

    std::vector<std::pair<std::string, std::string>> texts_;
};

/// A host that answers with prepared bodies; an empty one is a connection that breaks.
class ScriptedChannel final : public SoapChannel {
  public:
    explicit ScriptedChannel(std::deque<std::string> bodies) : bodies_(std::move(bodies)) {}

    std::string exchange(std::string_view soap) override {
        if (bodies_.empty()) bodies_.push_back(last_);
        last_ = bodies_.front();
        bodies_.pop_front();
        usable_ = !note(soap).empty() && !last_.empty();
        if (!usable_) throw RuntimeError(ErrorNumber::Failed, "lost");
        return "<s:Envelope xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\""
               " xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\""
               " xmlns:n=\"http://schemas.xmlsoap.org/ws/2004/09/enumeration\""
               " xmlns:f=\"http://schemas.microsoft.com/wbem/wsman/1/wsmanfault\"><s:Header>" +
               related_to_ + "</s:Header><s:Body>" + last_ + "</s:Body></s:Envelope>\r\n";
    }

    void send_parting(std::string_view soap) override {
        note(soap);
        throw RuntimeError(ErrorNumber::Failed, "a host that refuses a Release");
    }

    bool is_usable() const override { return usable_; }

    /// The last part of each action, and the context where there is one.
    std::vector<std::string> calls;
    std::string other_id;  ///< what the answers relate to; empty for the request
    bool relates = true;   ///< whether they say so at all
    std::vector<std::string> filters;

  private:
    std::string note(std::string_view soap) {
        const RequestTexts request(soap);
        const std::string action = request.text_of("Action");
        const std::string call = action.substr(action.rfind('/') + 1);
        if (call == "Enumerate") filters.push_back(request.text_of("Filter"));
        const std::string id = other_id.empty() ? request.text_of("MessageID") : other_id;
        related_to_ = relates ? "<a:RelatesTo>" + id + "</a:RelatesTo>" : "";
        calls.push_back(call == "Enumerate" ? call
                                            : call + " " + request.text_of("EnumerationContext"));
        return call;
    }

    std::deque<std::string> bodies_;
    std::string last_;
    std::string related_to_;
    bool usable_ = true;
};

inline constexpr const char* kEnd = "<n:EndOfSequence/>";

inline std::string answer(const std::string& context, const std::string& items,
                          const char* end = "") {
    return "<n:PullResponse><n:EnumerationContext>" + context + "</n:EnumerationContext><n:Items>" +
           items + "</n:Items>" + end + "</n:PullResponse>";
}

inline std::string first_answer(const std::string& context) {
    return "<n:EnumerateResponse><n:EnumerationContext>" + context +
           "</n:EnumerationContext></n:EnumerateResponse>";
}

inline std::string fault(std::uint32_t number, const std::string& words) {
    return "<s:Fault><s:Detail><f:WSManFault Code=\"" + std::to_string(number) + "\"><f:Message>" +
           words + "</f:Message></f:WSManFault></s:Detail></s:Fault>";
}

}  // namespace tessarine
