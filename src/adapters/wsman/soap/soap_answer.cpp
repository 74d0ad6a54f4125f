#include "adapters/wsman/soap/soap_answer.h"

#include <charconv>
#include <vector>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/soap/host_words.h"
#include "adapters/wsman/soap/xml_names.h"
#include "core/code_page.h"
#include "xml/xml_reader.h"

namespace tessarine {
namespace {

// The elements of an envelope that mean something, each at its one place.
enum class Place {
    Outside,
    Envelope,
    Header,
    RelatesTo,
    Body,
    Response,
    Context,
    Items,
    EndOfSequence,
    Fault,
    Code,
    Subcode,
    SubcodeValue,
    Reason,
    ReasonText,
    Detail,
    WsmanFault,
    FaultMessage,
    Other,
};

struct Step {
    Place parent;
    std::string_view name_space;
    std::string_view local;
    Place place;
};

// Windows writes Items and EndOfSequence of an optimised Enumerate in WS-Management's namespace.
constexpr Step kSteps[] = {
    {Place::Outside, xml::kSoap, "Envelope", Place::Envelope},
    {Place::Envelope, xml::kSoap, "Header", Place::Header},
    {Place::Header, xml::kAddressing, "RelatesTo", Place::RelatesTo},
    {Place::Envelope, xml::kSoap, "Body", Place::Body},
    {Place::Body, xml::kEnumeration, "EnumerateResponse", Place::Response},
    {Place::Body, xml::kEnumeration, "PullResponse", Place::Response},
    {Place::Response, xml::kEnumeration, "EnumerationContext", Place::Context},
    {Place::Response, xml::kEnumeration, "Items", Place::Items},
    {Place::Response, xml::kWsman, "Items", Place::Items},
    {Place::Response, xml::kEnumeration, "EndOfSequence", Place::EndOfSequence},
    {Place::Response, xml::kWsman, "EndOfSequence", Place::EndOfSequence},
    {Place::Body, xml::kSoap, "Fault", Place::Fault},
    {Place::Fault, xml::kSoap, "Code", Place::Code},
    {Place::Code, xml::kSoap, "Subcode", Place::Subcode},
    {Place::Subcode, xml::kSoap, "Value", Place::SubcodeValue},
    {Place::Fault, xml::kSoap, "Reason", Place::Reason},
    {Place::Reason, xml::kSoap, "Text", Place::ReasonText},
    {Place::Fault, xml::kSoap, "Detail", Place::Detail},
    {Place::Detail, xml::kWsmanFault, "WSManFault", Place::WsmanFault},
    {Place::WsmanFault, xml::kWsmanFault, "Message", Place::FaultMessage},
};

Place place_of(Place parent, XmlName name) {
    // The message may be wrapped in the report of a provider, and that in others.
    if (parent == Place::FaultMessage) return parent;
    for (const Step& step : kSteps)
        if (step.parent == parent && step.local == name.local && step.name_space == name.name_space)
            return step.place;
    return Place::Other;
}

class AnswerReader final : public XmlHandler {
  public:
    explicit AnswerReader(ItemReader& items) : items_(items) {}

    SoapAnswer finish();

    void start_element(XmlName name, const XmlAttributes& attributes) override;
    void end_element() override;
    void text(std::string_view piece) override;

  private:
    void enter(Place place, const XmlAttributes& attributes);
    std::string* text_at(Place place);
    Place place() const { return path_.empty() ? Place::Outside : path_.back(); }

    ItemReader& items_;
    std::vector<Place> path_;
    SoapAnswer answer_;
    SoapFault fault_;
    bool is_response_ = false;
    bool is_fault_ = false;
    std::string reason_;
    std::string message_;
};

void AnswerReader::start_element(XmlName name, const XmlAttributes& attributes) {
    if (place() == Place::Items) return items_.start_element(name, attributes);
    path_.push_back(place_of(place(), name));
    enter(place(), attributes);
}

void AnswerReader::enter(Place place, const XmlAttributes& attributes) {
    if (place == Place::Response) is_response_ = true;
    if (place == Place::EndOfSequence) answer_.ends_sequence = true;
    if (place == Place::Fault) is_fault_ = true;
    if (place != Place::WsmanFault) return;
    const std::string_view number = attributes.value({{}, "Code"}).value_or("");
    std::from_chars(number.data(), number.data() + number.size(), fault_.number);
}

void AnswerReader::end_element() {
    if (!items_.is_inside()) return path_.pop_back();
    items_.end_element();
    if (!items_.is_inside()) ++answer_.item_count;
}

void AnswerReader::text(std::string_view piece) {
    if (place() == Place::Items) return items_.text(piece);
    std::string* target = text_at(place());
    if (target == nullptr) return;
    if (target->size() + piece.size() > limits::kElementText)
        raise_failure("The host sent a text that is too long");
    target->append(piece);
}

std::string* AnswerReader::text_at(Place place) {
    switch (place) {
        case Place::RelatesTo:
            return &answer_.relates_to;
        case Place::Context:
            return &answer_.context;
        case Place::SubcodeValue:
            return &fault_.code;
        case Place::ReasonText:
            return &reason_;
        case Place::FaultMessage:
            return &message_;
        default:
            return nullptr;
    }
}

SoapAnswer AnswerReader::finish() {
    if (!is_response_ && !is_fault_) raise_failure("The host's answer is of an unknown kind");
    answer_.relates_to = trimmed(answer_.relates_to);
    answer_.context = trimmed(answer_.context);
    if (!is_fault_) return std::move(answer_);
    fault_.code = host_words(from_utf8(fault_.code.substr(fault_.code.find(':') + 1)));
    fault_.text = host_words(from_utf8(message_));
    if (fault_.text.empty()) fault_.text = host_words(from_utf8(reason_));
    answer_.fault = std::move(fault_);
    return std::move(answer_);
}

}  // namespace

SoapAnswer read_soap_answer(std::string_view envelope, ItemReader& items) {
    AnswerReader reader(items);
    read_xml(envelope, reader);
    return reader.finish();
}

}  // namespace tessarine
