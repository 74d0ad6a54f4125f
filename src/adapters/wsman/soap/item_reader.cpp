#include "adapters/wsman/soap/item_reader.h"

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/soap/xml_names.h"
#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr std::size_t kItemDepth = 1;
constexpr std::size_t kPropertyDepth = 2;

bool is_nil(const XmlAttributes& attributes) {
    const auto nil = attributes.value({xml::kInstance, "nil"});
    return nil && (*nil == "true" || *nil == "1");
}

}  // namespace

void ItemReader::start_element(XmlName name, const XmlAttributes& attributes) {
    ++depth_;
    if (depth_ == kItemDepth) {
        for (ItemValue& value : values_) value.present = false;
    } else if (depth_ == kPropertyDepth) {
        begin_property(name.local, attributes);
    }
}

void ItemReader::begin_property(std::string_view name, const XmlAttributes& attributes) {
    for (std::size_t i = 0; i < names_.size(); ++i) {
        if (!same_ascii_text(names_[i], name)) continue;
        if (is_nil(attributes)) return;
        values_[i].present = true;
        values_[i].text.clear();
        current_ = &values_[i];
        return;
    }
}

// A time stands in an element of its own inside its property.
void ItemReader::text(std::string_view piece) {
    if (current_ == nullptr) return;
    append_from_utf8(current_->text, piece);
    if (current_->text.size() > limits::kElementText)
        raise_failure("The host sent a text that is too long");
}

void ItemReader::end_element() {
    if (depth_ == kPropertyDepth) current_ = nullptr;
    if (depth_ == kItemDepth) take_(values_);
    --depth_;
}

}  // namespace tessarine
