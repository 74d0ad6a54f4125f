// Namespace-aware reading of one XML document, event by event.
#pragma once

#include <optional>
#include <string_view>

namespace tessarine {

struct XmlName {
    /// Empty for a name in no namespace.
    std::string_view name_space;
    std::string_view local;
};

/// The attributes of one element; valid during the call that hands them out.
class XmlAttributes {
  public:
    /// Names and values by turns, with a null pointer after the last, as expat gives them.
    explicit XmlAttributes(const char* const* pairs) : pairs_(pairs) {}
    std::optional<std::string_view> value(XmlName name) const;

  private:
    const char* const* pairs_;
};

/// What is done with the parts of a document. An exception ends the reading.
class XmlHandler {
  public:
    virtual ~XmlHandler() = default;
    virtual void start_element(XmlName name, const XmlAttributes& attributes) = 0;
    virtual void end_element() = 0;
    /// UTF-8; one text may come in several pieces, each of whole characters.
    virtual void text(std::string_view piece) = 0;
};

/// Reads `document` (UTF-8, whatever it says of itself). Raises a RuntimeError when it is
/// malformed, nests deeper than limits::kElementDepth, has a tag of more than two times
/// limits::kTag or a document type declaration: entities could make it grow without bound.
void read_xml(std::string_view document, XmlHandler& handler);

}  // namespace tessarine
