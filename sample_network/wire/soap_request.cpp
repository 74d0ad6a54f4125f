#include "sample_network/wire/soap_request.h"

#include <expat.h>

#include <charconv>
#include <map>
#include <memory>

namespace tessarine::sample {
namespace {

constexpr std::size_t kLongestMessageId = 200;
constexpr std::string_view kEnumeration = "http://schemas.xmlsoap.org/ws/2004/09/enumeration";

// The text of each element that has no others inside, by its local name: in a request no two
// elements of different namespaces share one, but for MaxElements, which means the same in both.
class ElementTexts {
  public:
    bool read(std::string_view xml) {
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), on_start, on_end);
        XML_SetCharacterDataHandler(parser_.get(), on_text);
        XML_SetStartDoctypeDeclHandler(parser_.get(), on_document_type);
        return XML_Parse(parser_.get(), xml.data(), static_cast<int>(xml.size()), XML_TRUE) ==
               XML_STATUS_OK;
    }

    bool has(const char* name) const { return texts_.contains(name); }

    std::string text(const char* name) const {
        const auto found = texts_.find(name);
        return found == texts_.end() ? std::string() : found->second;
    }

  private:
    static void on_start(void* self, const XML_Char*, const XML_Char**) {
        static_cast<ElementTexts*>(self)->text_.clear();
    }

    static void on_text(void* self, const XML_Char* text, int length) {
        static_cast<ElementTexts*>(self)->text_.append(text, static_cast<std::size_t>(length));
    }

    static void on_end(void* self, const XML_Char* name) {
        auto& texts = *static_cast<ElementTexts*>(self);
        const std::string_view full = name;
        const std::size_t blank = full.rfind(' ');
        const auto local = blank == std::string_view::npos ? full : full.substr(blank + 1);
        texts.texts_[std::string(local)] = std::move(texts.text_);
        texts.text_.clear();
    }

    static void on_document_type(void* self, const XML_Char*, const XML_Char*, const XML_Char*,
                                 int) {
        XML_StopParser(static_cast<ElementTexts*>(self)->parser_.get(), XML_FALSE);
    }

    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_{
        XML_ParserCreateNS(nullptr, ' '), XML_ParserFree};
    std::string text_;
    std::map<std::string, std::string, std::less<>> texts_;
};

bool read_action(const std::string& uri, SoapAction& action) {
    if (!uri.starts_with(kEnumeration)) return false;
    const std::string_view name = std::string_view(uri).substr(kEnumeration.size());
    if (name == "/Enumerate")
        action = SoapAction::Enumerate;
    else if (name == "/Pull")
        action = SoapAction::Pull;
    else if (name == "/Release")
        action = SoapAction::Release;
    else
        return false;
    return true;
}

// An absent limit keeps its default.
bool read_limit(const ElementTexts& texts, const char* name, std::size_t& limit) {
    if (!texts.has(name)) return true;
    const std::string text = texts.text(name);
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, limit);
    return error == std::errc{} && stop == end && limit > 0;
}

}  // namespace

std::optional<SoapRequest> parse_soap_request(std::string_view xml) {
    ElementTexts texts;
    SoapRequest request;
    if (!texts.read(xml) || !read_action(texts.text("Action"), request.action) ||
        !read_limit(texts, "MaxEnvelopeSize", request.max_envelope_size) ||
        !read_limit(texts, "MaxElements", request.max_elements))
        return std::nullopt;
    request.message_id = texts.text("MessageID");
    request.resource_uri = texts.text("ResourceURI");
    request.filter = texts.text("Filter");
    request.context = texts.text("EnumerationContext");
    request.optimize = texts.has("OptimizeEnumeration");
    if (request.message_id.empty() || request.message_id.size() > kLongestMessageId)
        return std::nullopt;
    return request;
}

}  // namespace tessarine::sample
