#include "xml/xml_reader.h"

#include <expat.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <memory>
#include <new>
#include <string>

#include "core/runtime_error.h"
#include "xml/xml_limits.h"

namespace tessarine {
namespace {

// Between the namespace and the local part of the names that expat hands out.
constexpr char kSeparator = '\n';

constexpr std::size_t kPiece = limits::kTag;

XmlName parts_of(std::string_view name) {
    const std::size_t separator = name.rfind(kSeparator);
    if (separator == std::string_view::npos) return {{}, name};
    return {name.substr(0, separator), name.substr(separator + 1)};
}

[[noreturn]] void fail(const std::string& what) {
    throw RuntimeError(ErrorNumber::Failed, "The host's answer can't be read: " + what);
}

class XmlReader {
  public:
    explicit XmlReader(XmlHandler& handler)
        : handler_(handler), parser_(XML_ParserCreateNS("UTF-8", kSeparator), XML_ParserFree) {
        if (parser_ == nullptr) throw std::bad_alloc();
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), on_start, on_end);
        XML_SetCharacterDataHandler(parser_.get(), on_text);
        XML_SetStartNamespaceDeclHandler(parser_.get(), on_name_space);
        XML_SetStartDoctypeDeclHandler(parser_.get(), on_doctype);
    }

    void read(std::string_view document) {
        // The parser copies what it gets; in pieces that takes no memory of the document's size,
        // and a tag that it still waits for shows how long it is.
        std::size_t fed = 0;
        for (bool final = false; !final;) {
            const std::string_view piece = document.substr(0, kPiece);
            document.remove_prefix(piece.size());
            final = document.empty();
            const auto status =
                XML_Parse(parser_.get(), piece.data(), static_cast<int>(piece.size()), final);
            if (failure_) std::rethrow_exception(failure_);
            if (status != XML_STATUS_OK) fail(XML_ErrorString(XML_GetErrorCode(parser_.get())));
            fed += piece.size();
            if (fed - done() > limits::kTag) fail("it has a tag that is too long");
        }
    }

  private:
    // Where the piece begins that the parser can't take without what follows.
    std::size_t done() const {
        return static_cast<std::size_t>(std::max(XML_GetCurrentByteIndex(parser_.get()), 0L));
    }

    // No exception may cross expat's frames.
    template <typename Action>
    static void guarded(void* user_data, Action action) {
        auto& self = *static_cast<XmlReader*>(user_data);
        if (self.failure_) return;
        try {
            action(self);
        } catch (...) {
            self.failure_ = std::current_exception();
            XML_StopParser(self.parser_.get(), XML_FALSE);
        }
    }

    static void on_start(void* user_data, const char* name, const char** attributes) {
        guarded(user_data, [&](XmlReader& self) {
            if (++self.depth_ > limits::kElementDepth) fail("it is nested too deeply");
            self.handler_.start_element(parts_of(name), XmlAttributes(attributes));
        });
    }

    static void on_end(void* user_data, const char*) {
        guarded(user_data, [](XmlReader& self) {
            --self.depth_;
            self.handler_.end_element();
        });
    }

    static void on_text(void* user_data, const char* text, int length) {
        guarded(user_data, [&](XmlReader& self) {
            self.handler_.text({text, static_cast<std::size_t>(length)});
        });
    }

    static void on_name_space(void* user_data, const char*, const char* uri) {
        guarded(user_data, [&](XmlReader&) {
            if (uri != nullptr && std::string_view(uri).size() > limits::kNameSpace)
                fail("it has a namespace that is too long");
        });
    }

    static void on_doctype(void* user_data, const char*, const char*, const char*, int) {
        guarded(user_data, [](XmlReader&) { fail("it has a document type declaration"); });
    }

    XmlHandler& handler_;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_;
    std::exception_ptr failure_;
    std::size_t depth_ = 0;
};

}  // namespace

std::optional<std::string_view> XmlAttributes::value(XmlName name) const {
    for (const char* const* pair = pairs_; pair[0] != nullptr; pair += 2) {
        const XmlName found = parts_of(pair[0]);
        if (found.local == name.local && found.name_space == name.name_space) return pair[1];
    }
    return std::nullopt;
}

void read_xml(std::string_view document, XmlHandler& handler) {
    XmlReader(handler).read(document);
}

}  // namespace tessarine
