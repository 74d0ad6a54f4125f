// Reads the items of an enumeration answer as event records.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "adapters/wsman/event_records.h"
#include "adapters/wsman/xml_reader.h"

namespace tessarine {

/// Gets what stands inside the Items element. Each of its children is a record, of whatever name,
/// and each child of that a property, known by its local name whatever the case: a query for whole
/// objects and one for some properties are answered in different namespaces. Arrays, which are
/// repeated elements, are among the properties that are passed over.
class ItemReader final : public XmlHandler {
  public:
    /// `records` is appended to, as append_event does.
    explicit ItemReader(std::string& records) : records_(records) {}

    void start_element(XmlName name, const XmlAttributes& attributes) override;
    void end_element() override;
    void text(std::string_view piece) override;

    /// Whether the reader stands inside an item.
    bool is_inside() const { return depth_ > 0; }
    std::size_t count() const { return count_; }

  private:
    struct Value {
        bool present = false;
        std::string text;
    };

    void begin_property(std::string_view name, const XmlAttributes& attributes);
    void end_property();
    void end_item();

    std::string& records_;
    std::size_t count_ = 0;
    std::size_t depth_ = 0;
    std::array<Value, kEventFields.size()> values_;
    Value* current_ = nullptr;
};

}  // namespace tessarine
