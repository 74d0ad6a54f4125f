// Reads the items of an enumeration answer, some properties of each.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "xml/xml_reader.h"

namespace tessarine {

/// The value of a property in the console's code page. A null value is not present.
struct ItemValue {
    bool present = false;
    std::string text;
};

/// Gets what stands inside the Items element. Each of its children is an item, of whatever name,
/// and each child of that a property, known by its local name whatever the case: a query for whole
/// objects and one for some properties are answered in different namespaces. Arrays, which are
/// repeated elements, are among the properties that are passed over.
class ItemReader final : public XmlHandler {
  public:
    /// Gets the values of one item, one for each name; it may change them.
    using TakeItem = std::function<void(std::span<ItemValue> values)>;

    /// `names` outlives the reader.
    ItemReader(std::span<const std::string_view> names, TakeItem take)
        : names_(names), values_(names.size()), take_(std::move(take)) {}

    void start_element(XmlName name, const XmlAttributes& attributes) override;
    void end_element() override;
    void text(std::string_view piece) override;

    /// Whether the reader stands inside an item.
    bool is_inside() const { return depth_ > 0; }

  private:
    void begin_property(std::string_view name, const XmlAttributes& attributes);

    std::span<const std::string_view> names_;
    std::vector<ItemValue> values_;
    TakeItem take_;
    std::size_t depth_ = 0;
    ItemValue* current_ = nullptr;
};

}  // namespace tessarine
